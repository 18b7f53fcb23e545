#include <array>

#include <QDBusMessage>
#include <QDBusVariant>

#include "app/linux/session/dbus_types.h"
#include "app/linux/session/startup_sequence.h"
#include "app/linux/session/x_desktop.h"
#include "app/linux/tray/status_notifier_item.h"
#include "fuzz/targets/target.h"

namespace quelby::fuzz {

namespace {

constexpr std::array interfaces{"org.kde.StatusNotifierItem", "com.canonical.dbusmenu",
                                "org.freedesktop.DBus.Properties", ""};
constexpr std::array members{"Activate",
                             "SecondaryActivate",
                             "XAyatanaSecondaryActivate",
                             "ContextMenu",
                             "Scroll",
                             "ProvideXdgActivationToken",
                             "GetLayout",
                             "GetGroupProperties",
                             "GetProperty",
                             "Event",
                             "EventGroup",
                             "AboutToShow",
                             "AboutToShowGroup",
                             "Get",
                             "GetAll",
                             "Set"};

// Takes its choices from the bytes, and the first of each where there are none left.
class Choices {
public:
    explicit Choices(std::string_view bytes) : rest_(bytes) {}

    [[nodiscard]] std::size_t below(std::size_t bound) {
        return static_cast<unsigned char>(take(1).front()) % bound;
    }

    [[nodiscard]] QVariant argument() {
        switch (below(7)) {
        case 0:
            return static_cast<int>(static_cast<signed char>(take(1).front()));
        case 1:
            return std::numeric_limits<int>::min();
        case 2:
            return static_cast<uint>(below(256));
        case 3:
            return QString::fromUtf8(text());
        case 4:
            return QVariant::fromValue(QDBusVariant(QString::fromUtf8(text())));
        case 5:
            return QVariantList{static_cast<int>(below(20)), QString::fromUtf8(text())};
        default:
            return QString::fromLatin1(interfaces[below(interfaces.size())]);
        }
    }

private:
    [[nodiscard]] std::string take(std::size_t count) {
        std::string taken(rest_.substr(0, count));
        rest_.remove_prefix(taken.size());
        taken.resize(count);
        return taken;
    }

    [[nodiscard]] QByteArray text() { return QByteArray::fromStdString(take(below(16))); }

    std::string_view rest_;
};

} // namespace

// As if they had come over the bus, which is none here: the answers go nowhere.
void takeBusCall(std::string_view bytes) {
    app::registerDBusTypes();
    Choices choices(bytes);
    app::StatusItemActions actions{.toggle = [] {},
                                   .showDashboard = [] {},
                                   .showSettings = [] {},
                                   .chooseDisplay = [](MenuBarDisplay) {},
                                   .scroll = [](int) {},
                                   .quit = [] {}};
    const QDBusConnection bus(QStringLiteral("none"));
    app::StatusNotifierItem item(
        bus, actions, [](auto) { return true; },
        [](const QByteArray& token) { static_cast<void>(app::endOfStartup(token.toStdString())); });
    app::TrayMenu menu(bus, QStringLiteral("/MenuBar"), actions);
    app::DBusObject* const objects[] = {&item, &menu};
    for (int calls = 0; calls < 4; ++calls) {
        auto message = QDBusMessage::createMethodCall(
            QString(), QStringLiteral("/"), QString::fromLatin1(interfaces[choices.below(interfaces.size())]),
            QString::fromLatin1(members[choices.below(members.size())]));
        QVariantList arguments;
        for (auto count = choices.below(6); count > 0; --count) {
            arguments.append(choices.argument());
        }
        message.setArguments(arguments);
        static_cast<void>(objects[choices.below(2)]->handleMessage(message, bus));
    }
}

void takeXSettings(std::string_view bytes) {
    const auto property = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    const app::XSettings settings(property);
    static_cast<void>(settings.text("Net/ThemeName"));
    static_cast<void>(settings.number("Net/DoubleClickTime"));
    static_cast<void>(app::trayInk(property));
}

} // namespace quelby::fuzz
