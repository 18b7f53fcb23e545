#include "app/linux/session/desktop_appearance.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFile>

#include "app/linux/session/gnome_settings.h"

namespace quelby::app {

namespace {

const auto portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const auto portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");

const auto appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const auto colorSchemeKey = QStringLiteral("color-scheme");
const auto contrastKey = QStringLiteral("contrast");
const auto accentKey = QStringLiteral("accent-color");
const auto gnomeGroup = QStringLiteral("org.gnome.desktop.interface");
const auto gnomeThemeKey = QStringLiteral("gtk-theme");
const auto gnomeAnimationsKey = QStringLiteral("enable-animations");
const auto gnomeTextScaleKey = QStringLiteral("text-scaling-factor");
const auto kdeGroup = QStringLiteral("org.kde.kdeglobals.KDE");
const auto kdeAnimationsKey = QStringLiteral("AnimationDurationFactor");
const auto kdeColorsGroup = QStringLiteral("org.kde.kdeglobals.General");
const auto kdeAccentKey = QStringLiteral("AccentColor");

const auto storePath = QStringLiteral("/ca/desrt/dconf/Writer/user");
const auto storeInterface = QStringLiteral("ca.desrt.dconf.Writer");
const auto storedGroup = QStringLiteral("/org/gnome/desktop/");

// The older method of the portal wraps its answer twice.
QVariant unwrapped(QVariant value) {
    while (value.metaType() == QMetaType::fromType<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value;
}

// Three numbers in a structure.
std::optional<std::uint32_t> accentOf(const QVariant& value) {
    if (value.metaType() != QMetaType::fromType<QDBusArgument>()) {
        return std::nullopt;
    }
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String("(ddd)")) {
        return std::nullopt;
    }
    double red = 0;
    double green = 0;
    double blue = 0;
    argument.beginStructure();
    argument >> red >> green >> blue;
    argument.endStructure();
    return accentFrom(red, green, blue);
}

PortalSettings storedSettings(const QString& configurationFolder) {
    constexpr qint64 largest = 1 << 24; // bytes; it is some thousand
    QFile file(configurationFolder + QStringLiteral("/dconf/user"));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const auto content = file.read(largest);
    return gnomeSettings(dconfValues({content.constData(), static_cast<std::size_t>(content.size())}));
}

ToolkitSettings settingsOfFiles(const QString& configurationFolder) {
    return toolkitSettings(configurationFolder, qEnvironmentVariable("XDG_CURRENT_DESKTOP"));
}

} // namespace

DesktopAppearance::DesktopAppearance(const QString& configurationFolder, std::function<void()> changed)
    : configurationFolder_(configurationFolder)
    , changed_(std::move(changed))
    , settings_{.portal = {},
                .x = {},
                .stored = storedSettings(configurationFolder),
                .isGnome =
                    qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(':').contains(QLatin1String("GNOME")),
                .file = settingsOfFiles(configurationFolder)} {
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
    bus_->connect({}, storePath, storeInterface, QStringLiteral("Notify"), this, SLOT(storeChanged(QString)));
    bus_->connect({}, QStringLiteral("/KGlobalSettings"), QStringLiteral("org.kde.KGlobalSettings"),
                  QStringLiteral("notifyChange"), this, SLOT(filesChanged()));
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
    ask(appearanceGroup, accentKey);
    ask(gnomeGroup, gnomeThemeKey);
    ask(gnomeGroup, gnomeTextScaleKey);
    ask(gnomeGroup, gnomeAnimationsKey);
    ask(kdeGroup, kdeAnimationsKey);
    ask(kdeColorsGroup, kdeAccentKey);
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

// Whatever a program stores comes here, so most of it is passed over.
void DesktopAppearance::storeChanged(const QString& prefix) {
    if (prefix.startsWith(storedGroup) || storedGroup.startsWith(prefix)) {
        auto now = settings_;
        now.stored = storedSettings(configurationFolder_);
        changeTo(now);
    }
}

void DesktopAppearance::filesChanged() {
    refresh();
}

void DesktopAppearance::take(const QString& group, const QString& key, const QVariant& value) {
    auto now = settings_;
    const auto plain = unwrapped(value);
    if (group == appearanceGroup && key == colorSchemeKey) {
        now.portal.colorScheme = plain.toUInt();
    } else if (group == appearanceGroup && key == contrastKey) {
        now.portal.contrast = plain.toUInt();
    } else if (group == appearanceGroup && key == accentKey) {
        now.portal.accent = accentOf(plain);
    } else if (group == kdeColorsGroup && key == kdeAccentKey) {
        now.portal.accent = colorOfKde(plain.toString().toStdString());
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

// The files are read again whenever anything else changes: desktops write it with the rest.
void DesktopAppearance::changeTo(const DesktopSettings& settings) {
    auto now = settings;
    now.file = settingsOfFiles(configurationFolder_);
    if (now != settings_) {
        settings_ = now;
        changed_();
    }
}

} // namespace quelby::app
