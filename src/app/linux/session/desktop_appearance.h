#pragma once

#include <functional>
#include <optional>

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

#include "ui/view/appearance.h"

namespace quelby::app {

// What the desktop says of light and dark and of animations: through its portal
// (org.freedesktop.portal.Settings), or else in the settings file of GTK programs.
class DesktopAppearance : public QObject {
    Q_OBJECT

public:
    // The folder with the user's settings holds gtk-3.0/settings.ini, if there is one.
    DesktopAppearance(const QString& configurationFolder, std::function<void()> changed);

    [[nodiscard]] Appearance current() const { return appearance_; }

    // Asks the portal, if it is running, and follows it from now on.
    void setBus(const std::optional<QDBusConnection>& bus);

private Q_SLOTS:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void ask(QDBusConnection bus, const QString& group, const QString& key);
    void take(const QString& group, const QString& key, const QVariant& value);
    void set(Appearance appearance);

    std::function<void()> changed_;
    Appearance appearance_;
};

// From the text of such a file. What it does not say stays as it is.
[[nodiscard]] Appearance gtkAppearance(const QString& file, Appearance otherwise);

} // namespace quelby::app
