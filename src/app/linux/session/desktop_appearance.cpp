#include "app/linux/session/desktop_appearance.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace quelby::app {

namespace {

const auto portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const auto portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");

const auto appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const auto colorSchemeKey = QStringLiteral("color-scheme");
const auto contrastKey = QStringLiteral("contrast");
const auto gnomeGroup = QStringLiteral("org.gnome.desktop.interface");
const auto gnomeThemeKey = QStringLiteral("gtk-theme");
const auto gnomeAnimationsKey = QStringLiteral("enable-animations");
const auto gnomeTextScaleKey = QStringLiteral("text-scaling-factor");
const auto kdeGroup = QStringLiteral("org.kde.kdeglobals.KDE");
const auto kdeAnimationsKey = QStringLiteral("AnimationDurationFactor");

// The older method of the portal wraps its answer twice.
QVariant unwrapped(QVariant value) {
    while (value.metaType() == QMetaType::fromType<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value;
}

} // namespace

DesktopAppearance::DesktopAppearance(const QString& configurationFolder, std::function<void()> changed)
    : configurationFolder_(configurationFolder)
    , changed_(std::move(changed))
    , settings_{.portal = {}, .x = {}, .file = toolkitSettings(configurationFolder)} {
    portal_.addWatchedService(portalService);
    portal_.setWatchMode(QDBusServiceWatcher::WatchForRegistration);
    QObject::connect(&portal_, &QDBusServiceWatcher::serviceRegistered, this, [this] { askForEverything(); });
}

void DesktopAppearance::setBus(const std::optional<QDBusConnection>& bus) {
    bus_ = bus;
    if (!bus_) {
        return;
    }
    qRegisterMetaType<QDBusVariant>(); // which the bus needs to find the slot
    bus_->connect(portalService, portalPath, settingsInterface, QStringLiteral("SettingChanged"), this,
                  SLOT(settingChanged(QString, QString, QDBusVariant)));
    portal_.setConnection(*bus_);
    askForEverything();
}

void DesktopAppearance::setXSettings(const XSettings& settings) {
    auto now = settings_;
    now.x = settings;
    changeTo(now);
}

void DesktopAppearance::askForEverything() {
    ask(appearanceGroup, colorSchemeKey);
    ask(appearanceGroup, contrastKey);
    ask(gnomeGroup, gnomeThemeKey);
    ask(gnomeGroup, gnomeTextScaleKey);
    ask(gnomeGroup, gnomeAnimationsKey);
    ask(kdeGroup, kdeAnimationsKey);
}

void DesktopAppearance::ask(const QString& group, const QString& key) {
    auto message =
        QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, QStringLiteral("Read"));
    message.setArguments({group, key});
    message.setAutoStartService(false); // a portal that nobody has started is not needed for this
    auto* const answer = new QDBusPendingCallWatcher(bus_->asyncCall(message), this);
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
    auto now = settings_;
    const auto plain = unwrapped(value);
    if (group == appearanceGroup && key == colorSchemeKey) {
        now.portal.colorScheme = plain.toUInt();
    } else if (group == appearanceGroup && key == contrastKey) {
        now.portal.contrast = plain.toUInt();
    } else if (group == gnomeGroup && key == gnomeTextScaleKey) {
        now.portal.textScale = plain.toDouble();
    } else if (group == gnomeGroup && key == gnomeThemeKey) {
        now.portal.theme = plain.toString().toStdString();
    } else if (group == gnomeGroup && key == gnomeAnimationsKey) {
        now.portal.animated = plain.toBool();
    } else if (group == kdeGroup && key == kdeAnimationsKey) {
        now.portal.animationFactor = plain.toDouble();
    }
    changeTo(now);
}

// The file is read again whenever anything else changes: desktops write it with the rest.
void DesktopAppearance::changeTo(const DesktopSettings& settings) {
    auto now = settings;
    now.file = toolkitSettings(configurationFolder_);
    if (now != settings_) {
        settings_ = now;
        changed_();
    }
}

} // namespace quelby::app
