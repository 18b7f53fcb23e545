#include "app/linux/session/desktop_appearance.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QSettings>

namespace quelby::app {

namespace {

const auto portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const auto portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");

const auto appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const auto colorSchemeKey = QStringLiteral("color-scheme"); // 1 asks for dark, 2 for light, 0 does not care
const auto gnomeGroup = QStringLiteral("org.gnome.desktop.interface");
const auto gnomeAnimationsKey = QStringLiteral("enable-animations");
const auto kdeGroup = QStringLiteral("org.kde.kdeglobals.KDE");
const auto kdeAnimationsKey = QStringLiteral("AnimationDurationFactor"); // 0 for none

// The older method of the portal wraps its answer twice.
QVariant unwrapped(QVariant value) {
    while (value.metaType() == QMetaType::fromType<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value;
}

} // namespace

Appearance gtkAppearance(const QString& file, Appearance otherwise) {
    const QSettings settings(file, QSettings::IniFormat);
    const auto value = [&](const char* key) {
        return settings.value(QStringLiteral("Settings/") + QLatin1String(key));
    };
    const auto prefersDark = value("gtk-application-prefer-dark-theme");
    const auto theme = value("gtk-theme-name").toString();
    const auto animations = value("gtk-enable-animations");
    if (prefersDark.isValid() || !theme.isEmpty()) {
        otherwise.dark = prefersDark.toBool() || theme.endsWith(QLatin1String("-dark"), Qt::CaseInsensitive);
    }
    if (animations.isValid()) {
        otherwise.animated = animations.toBool();
    }
    return otherwise;
}

DesktopAppearance::DesktopAppearance(const QString& configurationFolder, std::function<void()> changed)
    : changed_(std::move(changed))
    , appearance_(gtkAppearance(configurationFolder + QStringLiteral("/gtk-3.0/settings.ini"), {})) {}

void DesktopAppearance::setBus(const std::optional<QDBusConnection>& bus) {
    if (!bus) {
        return;
    }
    auto connection = *bus;
    qRegisterMetaType<QDBusVariant>(); // which the bus needs to find the slot
    connection.connect(portalService, portalPath, settingsInterface, QStringLiteral("SettingChanged"), this,
                       SLOT(settingChanged(QString, QString, QDBusVariant)));
    ask(connection, appearanceGroup, colorSchemeKey);
    ask(connection, gnomeGroup, gnomeAnimationsKey);
    ask(connection, kdeGroup, kdeAnimationsKey);
}

void DesktopAppearance::ask(QDBusConnection bus, const QString& group, const QString& key) {
    auto message =
        QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, QStringLiteral("Read"));
    message.setArguments({group, key});
    message.setAutoStartService(false); // a portal that nobody has started is not needed for this
    auto* const answer = new QDBusPendingCallWatcher(bus.asyncCall(message), this);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, group, key] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        answer->deleteLater();
        if (reply.isValid()) {
            take(group, key, reply.value().variant());
        }
    });
}

void DesktopAppearance::settingChanged(const QString& group, const QString& key, const QDBusVariant& value) {
    take(group, key, value.variant());
}

void DesktopAppearance::take(const QString& group, const QString& key, const QVariant& value) {
    auto appearance = appearance_;
    const auto plain = unwrapped(value);
    if (group == appearanceGroup && key == colorSchemeKey && plain.toUInt() != 0) {
        appearance.dark = plain.toUInt() == 1;
    } else if (group == gnomeGroup && key == gnomeAnimationsKey) {
        appearance.animated = plain.toBool();
    } else if (group == kdeGroup && key == kdeAnimationsKey) {
        appearance.animated = plain.toDouble() > 0;
    }
    set(appearance);
}

void DesktopAppearance::set(Appearance appearance) {
    if (appearance != appearance_) {
        appearance_ = appearance;
        changed_();
    }
}

} // namespace quelby::app
