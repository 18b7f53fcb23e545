#pragma once

#include <optional>

#include <QObject>

#include "app/desktop.h"
#include "app/linux/popover/linux_popover.h"
#include "app/linux/session/desktop_appearance.h"
#include "app/linux/session/session_bus.h"
#include "app/linux/session/x_desktop.h"
#include "app/linux/tray/linux_status_item.h"

namespace quelby::app {

// What to do on a desktop that has no tray when the program starts. One that goes away later is waited for.
enum class WithoutTray {
    openWindow, // a person has just started the program and wants to see it
    wait,       // it was started with the session, whose panel may come later
};

// A desktop of Linux. Needs Qt's application object.
class LinuxDesktop final : public QObject, public Desktop {
public:
    LinuxDesktop(SessionBus& bus, Platform platform, WithoutTray withoutTray);

    [[nodiscard]] StatusItem& makeStatusItem() override;
    [[nodiscard]] Popover& makePopover(std::shared_ptr<PowerMonitor> monitor,
                                       std::function<void()> quit) override;
    void addKeyMonitor(std::function<bool(const KeyDown&)> handler) override;
    void terminate() override;

    // Connects the status item with the session. Called once everything is there.
    void start();

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void setBus(const std::optional<QDBusConnection>& bus);
    void connectToX();
    void itemShown(bool shown);
    [[nodiscard]] Appearance appearance() const;
    void appearanceChanged();
    void lookAtPanel();

    SessionBus& bus_;
    Platform platform_;
    WithoutTray withoutTray_;     // asked once: a tray that goes away later comes back
    QString configurationFolder_; // the desktop's, also where this program's own files are elsewhere
    DesktopAppearance appearance_;
    std::function<bool(const KeyDown&)> keyMonitor_;
    std::optional<LinuxStatusItem> item_; // none before it is made, as is the popover
    std::optional<LinuxPopover> popover_;
    std::unique_ptr<XDesktop> x_; // none on a desktop of Wayland alone
};

} // namespace quelby::app
