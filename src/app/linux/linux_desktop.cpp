#include "app/linux/linux_desktop.h"

#include <utility>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QStandardPaths>
#include <QWindow>

#include "app/linux/display.h"
#include "app/linux/session/startup_sequence.h"
#include "app/linux/tray/panel_theme.h"
#include "console/standard_output.h"
#include "platform/battery_settings.h"

namespace quelby::app {

namespace {

// Also on a desktop of Wayland that has a server of X for such programs.
bool onX11() {
    return QGuiApplication::platformName() == QLatin1String("xcb");
}

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

LinuxDesktop::LinuxDesktop(SessionBus& bus, Platform platform, const OwnProgram& program,
                           FirstOpening firstOpening)
    : bus_(bus)
    , platform_(platform)
    , program_(program)
    , firstOpening_(firstOpening)
    , configurationFolder_(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
    , appearance_(configurationFolder_, [this] { appearanceChanged(); })
    , view_([this] { popover_->viewChanged(); }) {}

StatusItem& LinuxDesktop::makeStatusItem() {
    return item_.emplace(LinuxStatusItem::Listener{.pressed =
                                                       [this](std::optional<QPoint> told) {
                                                           return popover_->itemPressed(
                                                               told, appearance_.doublePress());
                                                       },
                                                   .tokenGiven =
                                                       [this](const QByteArray& token) {
                                                           qputenv("XDG_ACTIVATION_TOKEN", token);
                                                           if (x_) {
                                                               endStartupSequence(token.toStdString());
                                                           }
                                                       },
                                                   .shown = [this](bool shown) { itemShown(shown); }});
}

Popover& LinuxDesktop::makePopover(std::shared_ptr<PowerMonitor> monitor, std::function<void()> quit) {
    PopoverParts parts{.monitor = std::move(monitor),
                       .clock = platform_.clock,
                       .quit = std::move(quit),
                       .openBatterySettings =
                           [] {
                               forgetDisplay();
                               openBatterySettings();
                           },
                       .appearance =
                           [this] {
                               appearance_.refresh();
                               return appearance();
                           }};
    return popover_.emplace(std::move(parts), [this] { return giveWay(); });
}

bool LinuxDesktop::giveWay() {
    if (program_.wasReplaced()) {
        ending_ = Ending::startedAnew;
        terminate();
    }
    return ending_ == Ending::startedAnew;
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
    connectToX();
    setBus(bus_.connection());
    bus_.follow([this](const std::optional<QDBusConnection>& bus) {
        firstOpening_ = FirstOpening::never; // whatever the bus before had yet to tell
        setBus(bus);
    });
}

// Only where Qt is connected with it as well: elsewhere the compositor would start a server of X for this.
void LinuxDesktop::connectToX() {
    if (!onX11()) {
        return;
    }
    x_ = XDesktop::connect({.settingsChanged = [this] { appearance_.setXSettings(x_->settings()); },
                            .trayChanged =
                                [this] {
                                    lookAtPanel();
                                    item_->lookForOlderTray();
                                },
                            .gone = [this] { terminate(); }}); // before Qt ends the program its own way
    if (x_) {
        appearance_.setXSettings(x_->settings());
    }
}

void LinuxDesktop::setBus(const std::optional<QDBusConnection>& bus) {
    appearance_.setBus(bus);
    item_->setBus(bus);
    view_.setBus(bus);
}

// On X11 Qt scales everything by the resolution that the desktop gives its fonts, which has it in it.
Appearance LinuxDesktop::appearance() const {
    auto appearance = appearance_.current();
    if (onX11()) {
        appearance.textScale = 1;
    }
    return appearance;
}

void LinuxDesktop::appearanceChanged() {
    if (popover_) {
        popover_->appearanceChanged();
    }
    if (item_) {
        lookAtPanel();
    }
}

void LinuxDesktop::lookAtPanel() {
    item_->setPanel({.darkScheme = appearance_.darkScheme(),
                     .panelTheme = panelTheme(item_->panelStyle(), configurationFolder_),
                     .publishedInk = x_ ? x_->trayInk() : std::nullopt});
}

void LinuxDesktop::itemShown(bool shown) {
    const auto opening = std::exchange(firstOpening_, FirstOpening::never);
    if (shown) {
        popover_->setForm(PopoverForm::atTheItem);
        lookAtPanel();
        if (opening == FirstOpening::always) {
            popover_->show();
        }
    } else if (opening != FirstOpening::never) {
        popover_->setForm(PopoverForm::ordinary);
        writeToStandardError("quelby: this desktop has no tray, so the dashboard is an ordinary window\n");
        popover_->show();
    }
}

} // namespace quelby::app
