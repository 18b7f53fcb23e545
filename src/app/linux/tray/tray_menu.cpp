#include "app/linux/tray/tray_menu.h"

#include <QDBusVariant>

#include "ui/presentation/text/words.h"

namespace quelby::app {

namespace {

// The numbers of the rows; those of the displays follow the first one.
constexpr int showDashboard = 1;
constexpr int firstSeparator = 2;
constexpr int firstDisplay = 10;
constexpr int secondSeparator = 3;
constexpr int openSettings = 4;
constexpr int quit = 5;

constexpr int displayCount = static_cast<int>(allMenuBarDisplays.size());

bool isDisplay(int id) {
    return id >= firstDisplay && id < firstDisplay + displayCount;
}

MenuBarDisplay displayOf(int id) {
    return allMenuBarDisplays.at(static_cast<std::size_t>(id - firstDisplay));
}

QVariantMap label(std::string_view text) {
    return {{QStringLiteral("label"), QString::fromUtf8(text)}};
}

} // namespace

TrayMenu::TrayMenu(const QDBusConnection& bus, const QString& path, const StatusItemActions& actions)
    : DBusObject(bus, path, QStringLiteral("com.canonical.dbusmenu")), actions_(actions) {}

void TrayMenu::setDisplay(MenuBarDisplay display) {
    if (display == display_) {
        return;
    }
    display_ = display;
    emitSignal(QStringLiteral("LayoutUpdated"), {++revision_, 0});
}

QVariantMap TrayMenu::propertiesOf(int id) const {
    if (isDisplay(id)) {
        auto row = label(rawValue(displayOf(id)));
        row.insert(QStringLiteral("toggle-type"), QStringLiteral("radio"));
        row.insert(QStringLiteral("toggle-state"), displayOf(id) == display_ ? 1 : 0);
        return row;
    }
    switch (id) {
    case 0:
        return {{QStringLiteral("children-display"), QStringLiteral("submenu")}};
    case showDashboard:
        return label(words::showDashboard);
    case openSettings:
        return label(words::settings);
    case quit:
        return label(words::quit);
    default:
        return {{QStringLiteral("type"), QStringLiteral("separator")}};
    }
}

DBusMenuRow TrayMenu::menu() const {
    DBusMenuRow root{0, propertiesOf(0), {}};
    const auto add = [&](int id) { root.rows.append({id, propertiesOf(id), {}}); };
    add(showDashboard);
    add(firstSeparator);
    for (int id = firstDisplay; isDisplay(id); ++id) {
        add(id);
    }
    add(secondSeparator);
    add(openSettings);
    add(quit);
    return root;
}

QVariantMap TrayMenu::properties() const {
    return {{QStringLiteral("Version"), 3U},
            {QStringLiteral("TextDirection"), QStringLiteral("ltr")},
            {QStringLiteral("Status"), QStringLiteral("normal")},
            {QStringLiteral("IconThemePath"), QStringList()}};
}

QString TrayMenu::members() const {
    return methodText("GetLayout", {"i", "i", "as"}, {"u", "(ia{sv}av)"}) +
           methodText("GetGroupProperties", {"ai", "as"}, {"a(ia{sv})"}) +
           methodText("GetProperty", {"i", "s"}, {"v"}) + methodText("Event", {"i", "s", "v", "u"}) +
           methodText("EventGroup", {"a(isvu)"}, {"ai"}) + methodText("AboutToShow", {"i"}, {"b"}) +
           methodText("AboutToShowGroup", {"ai"}, {"ai", "ai"}) + signalText("LayoutUpdated", {"u", "i"});
}

// The library ends the program over an array that holds something else than what is read from it.
bool TrayMenu::call(const QDBusMessage& message) {
    const auto arguments = message.arguments();
    const auto member = message.member();
    if (member == QLatin1String("GetLayout") && !arguments.isEmpty()) {
        answerLayout(message);
    } else if (member == QLatin1String("GetGroupProperties") &&
               message.signature() == QLatin1String("aias")) {
        answerGroupProperties(message);
    } else if (member == QLatin1String("GetProperty") && arguments.size() > 1) {
        const auto value = propertiesOf(arguments[0].toInt()).value(arguments[1].toString(), QString());
        reply(message, {QVariant::fromValue(QDBusVariant(value))});
    } else if (member == QLatin1String("AboutToShow")) {
        reply(message, {false});
    } else if (member == QLatin1String("AboutToShowGroup")) {
        reply(message, {QVariant::fromValue(QList<int>()), QVariant::fromValue(QList<int>())});
    } else if (member == QLatin1String("Event") && arguments.size() > 1) {
        reply(message);
        if (arguments[1].toString() == QLatin1String("clicked")) {
            choose(arguments[0].toInt());
        }
    } else if (member == QLatin1String("EventGroup") && message.signature() == QLatin1String("a(isvu)")) {
        reply(message, {QVariant::fromValue(QList<int>())});
        const auto events = arguments[0].value<QDBusArgument>();
        events.beginArray();
        while (!events.atEnd()) {
            int id = 0;
            QString event;
            QDBusVariant data;
            uint time = 0;
            events.beginStructure();
            events >> id >> event >> data >> time;
            events.endStructure();
            if (event == QLatin1String("clicked")) {
                choose(id);
            }
        }
        events.endArray();
    } else {
        return false;
    }
    return true;
}

// Of the root: everything. Of a row: the row alone, for nothing is below it.
void TrayMenu::answerLayout(const QDBusMessage& message) const {
    const int id = message.arguments().first().toInt();
    const auto row = id == 0 ? menu() : DBusMenuRow{id, propertiesOf(id), {}};
    reply(message, {revision_, QVariant::fromValue(row)});
}

void TrayMenu::answerGroupProperties(const QDBusMessage& message) const {
    auto ids = qdbus_cast<QList<int>>(message.arguments().first());
    if (ids.isEmpty()) { // an empty list asks for all of them
        ids.append(0);
        const auto rows = menu().rows;
        std::transform(rows.begin(), rows.end(), std::back_inserter(ids),
                       [](const DBusMenuRow& row) { return row.id; });
    }
    DBusMenuPropertiesList list;
    for (const int id : ids) {
        list.append({id, propertiesOf(id)});
    }
    reply(message, {QVariant::fromValue(list)});
}

void TrayMenu::choose(int id) const {
    if (isDisplay(id)) {
        actions_.chooseDisplay(displayOf(id));
        return;
    }
    switch (id) {
    case showDashboard:
        actions_.showDashboard();
        break;
    case openSettings:
        actions_.showSettings();
        break;
    case quit:
        actions_.quit();
        break;
    default:
        break;
    }
}

} // namespace quelby::app
