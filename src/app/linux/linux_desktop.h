#pragma once

#include <optional>

#include <QObject>

#include "app/desktop.h"
#include "app/linux/popover/linux_popover.h"
#include "app/linux/session/desktop_appearance.h"
#include "app/linux/session/own_program.h"
#include "app/linux/session/session_bus.h"
#include "app/linux/session/view_change.h"
#include "app/linux/session/x_desktop.h"
#include "app/linux/tray/linux_status_item.h"

namespace quelby::app {

// Whether the dashboard opens by itself once it is known whether there is a tray. One that goes away later is
// waited for.
enum class FirstOpening {
    withoutTray, // a person has just started the program and wants to see it
    always,      // and wants to see more of it than its item
    never,       // it was started with the session, whose panel may come later
};

// What this program is once its event loop has ended.
enum class Ending { gone, startedAnew };

// A desktop of Linux. Needs Qt's application object.
class LinuxDesktop final : public QObject, public Desktop {
public:
    // The bus and the program outlive it.
    LinuxDesktop(SessionBus& bus, Platform platform, const OwnProgram& program, FirstOpening firstOpening);

    [[nodiscard]] StatusItem& makeStatusItem() override;
    [[nodiscard]] Popover& makePopover(std::shared_ptr<PowerMonitor> monitor,
                                       std::function<void()> quit) override;
    void addKeyMonitor(std::function<bool(const KeyDown&)> handler) override;
    void terminate() override;

    // Connects the status item with the session. Called once everything is there.
    void start();

    // Started anew where somebody wanted to see the dashboard after an upgrade, whose library is not this program's.
    [[nodiscard]] Ending ending() const { return ending_; }

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void setBus(const std::optional<QDBusConnection>& bus);
    void connectToX();
    void itemShown(bool shown);
    [[nodiscard]] bool giveWay();
    [[nodiscard]] Appearance appearance() const;
    void appearanceChanged();
    void lookAtPanel();

    SessionBus& bus_;
    Platform platform_;
    const OwnProgram& program_;
    FirstOpening firstOpening_; // never again once it has been asked: a tray that goes away later comes back
    Ending ending_ = Ending::gone;
    QString configurationFolder_; // the desktop's, also where this program's own files are elsewhere
    DesktopAppearance appearance_;
    std::function<bool(const KeyDown&)> keyMonitor_;
    std::optional<LinuxStatusItem> item_; // none before it is made, as is the popover
    std::optional<LinuxPopover> popover_;
    ViewChange view_;
    std::unique_ptr<XDesktop> x_; // none on a desktop of Wayland alone
};

} // namespace quelby::app
