#pragma once

#include <optional>

#include <QObject>

#include "app/desktop.h"
#include "app/linux/popover/linux_popover.h"
#include "app/linux/session/desktop_appearance.h"
#include "app/linux/session/session_bus.h"
#include "app/linux/tray/linux_status_item.h"

namespace quelby::app {

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
    void itemShown(bool shown);

    SessionBus& bus_;
    Platform platform_;
    WithoutTray withoutTray_;
    DesktopAppearance appearance_;
    std::function<bool(const KeyDown&)> keyMonitor_;
    std::optional<LinuxStatusItem> item_; // none before it is made, as is the popover
    std::optional<LinuxPopover> popover_;
};

} // namespace quelby::app
