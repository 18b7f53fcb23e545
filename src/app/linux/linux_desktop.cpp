#include "app/linux/linux_desktop.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWindow>

#include "app/linux/display.h"
#include "console/standard_output.h"
#include "platform/battery_settings.h"

namespace quelby::app {

namespace {

// The characters as the key has them without Control, which would turn them into control characters.
KeyDown keyDown(const QKeyEvent& event) {
    KeyDown key{.command = event.modifiers().testFlag(Qt::ControlModifier)};
    if (event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z) {
        const bool capital = event.modifiers().testFlag(Qt::ShiftModifier);
        key.characters = static_cast<char>((capital ? 'A' : 'a') + (event.key() - Qt::Key_A));
    } else {
        key.characters = event.text().toStdString();
    }
    return key;
}

} // namespace

LinuxDesktop::LinuxDesktop(SessionBus& bus, Platform platform, WithoutTray withoutTray)
    : bus_(bus)
    , platform_(platform)
    , withoutTray_(withoutTray)
    , appearance_(QString::fromStdString(platform_.folders->configuration().string()), [this] {
        if (popover_) {
            popover_->appearanceChanged();
        }
    }) {}

StatusItem& LinuxDesktop::makeStatusItem() {
    return item_.emplace(LinuxStatusItem::Listener{
        .pressed = [this](std::optional<QPoint> told) { return popover_->itemPressed(told); },
        .shown = [this](bool shown) { itemShown(shown); }});
}

Popover& LinuxDesktop::makePopover(std::shared_ptr<PowerMonitor> monitor, std::function<void()> quit) {
    return popover_.emplace(PopoverParts{.monitor = std::move(monitor),
                                         .clock = platform_.clock,
                                         .quit = std::move(quit),
                                         .openBatterySettings =
                                             [] {
                                                 forgetDisplay();
                                                 openBatterySettings();
                                             },
                                         .appearance = [this] { return appearance_.current(); }});
}

void LinuxDesktop::addKeyMonitor(std::function<bool(const KeyDown&)> handler) {
    keyMonitor_ = std::move(handler);
    QCoreApplication::instance()->installEventFilter(this);
}

// Every key comes to a window before anything in it sees it.
bool LinuxDesktop::eventFilter(QObject* object, QEvent* event) {
    const bool key = event->type() == QEvent::KeyPress && qobject_cast<QWindow*>(object) != nullptr;
    return key && keyMonitor_(keyDown(*static_cast<QKeyEvent*>(event)));
}

void LinuxDesktop::terminate() {
    QCoreApplication::quit();
}

void LinuxDesktop::start() {
    setBus(bus_.connection());
    bus_.follow([this](const std::optional<QDBusConnection>& bus) { setBus(bus); });
}

void LinuxDesktop::setBus(const std::optional<QDBusConnection>& bus) {
    appearance_.setBus(bus);
    item_->setBus(bus);
}

void LinuxDesktop::itemShown(bool shown) {
    popover_->setForm(shown ? PopoverForm::atTheItem : PopoverForm::ordinary);
    if (shown || withoutTray_ == WithoutTray::wait) {
        return;
    }
    writeToStandardError("quelby: this desktop has no tray, so the dashboard is an ordinary window\n");
    popover_->show();
}

} // namespace quelby::app
