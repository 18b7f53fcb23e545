#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QObject>

#include "app/linux/session/desktop_settings.h"

namespace quelby::app {

// How the desktop likes its programs, followed: through its portal, by X11's settings, or in the files in which
// desktops keep their settings.
class DesktopAppearance : public QObject {
    Q_OBJECT

public:
    // The folder holds the user's settings. Told of each change of anything below.
    DesktopAppearance(const QString& configurationFolder, std::function<void()> changed);

    [[nodiscard]] Appearance current() const { return appearance(settings_); }

    // Reads the files again, of whose changes hardly anybody tells.
    void refresh() { changeTo(settings_); }

    // As the function of this name says.
    [[nodiscard]] std::optional<bool> darkScheme() const { return app::darkScheme(settings_); }

    // Within it two presses are a double one.
    [[nodiscard]] std::chrono::milliseconds doublePress() const { return app::doublePress(settings_); }

    // Asks the portal, once it is running, and follows it from now on.
    void setBus(const std::optional<QDBusConnection>& bus);

    void setXSettings(const XSettings& settings);

private Q_SLOTS:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

    // KDE tells so of its own.
    void filesChanged();

    // Of those that are stored, somewhere below the prefix.
    void storeChanged(const QString& prefix);

private:
    void askForEverything();
    void ask(const QString& group, const QString& key);
    void take(const QString& group, const QString& key, const QVariant& value);
    void changeTo(const DesktopSettings& settings);

    QString configurationFolder_;
    std::function<void()> changed_;
    DesktopSettings settings_;
    std::optional<QDBusConnection> bus_;
    QDBusServiceWatcher portal_; // which may be started later than this program
};

} // namespace quelby::app
