#pragma once

#include <optional>

#include <QObject>

#include "app/desktop.h"
#include "app/linux/desktop_appearance.h"
#include "app/linux/late_dashboard.h"
#include "app/linux/linux_status_item.h"
#include "app/linux/session_bus.h"

namespace quelby::app {

enum class WithoutTray {
    openWindow, // a person has just started the program and wants to see it
    wait,       // it was started with the session, whose panel may come later
};

// A desktop of Linux. Needs Qt's application object. The status item and the popover that it makes end before
// it.
class LinuxDesktop final : public QObject, public Desktop {
public:
    LinuxDesktop(SessionBus& bus, Platform platform, WithoutTray withoutTray);

    [[nodiscard]] std::unique_ptr<StatusItem> makeStatusItem() override;
    [[nodiscard]] std::unique_ptr<Popover> makePopover(std::shared_ptr<PowerMonitor> monitor,
                                                       std::function<void()> quit) override;
    void addKeyMonitor(std::function<bool(const KeyDown&)> handler) override;
    void terminate() override;

    // Connects the status item with the session. Called once everything is there.
    void start();

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void setBus(const std::optional<QDBusConnection>& bus);
    void itemShown(bool shown);
    [[nodiscard]] bool itemPressed(std::optional<QPoint> where);

    SessionBus& bus_;
    Platform platform_;
    WithoutTray withoutTray_;
    DesktopAppearance appearance_;
    std::function<bool(const KeyDown&)> keyMonitor_;

    // Owned by whoever asked for them; null before they are made.
    LinuxStatusItem* item_ = nullptr;
    LateDashboard* popover_ = nullptr;
};

} // namespace quelby::app
