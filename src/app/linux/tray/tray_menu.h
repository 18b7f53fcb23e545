#pragma once

#include "app/linux/session/dbus_object.h"
#include "app/linux/session/dbus_types.h"
#include "app/status_item.h"

namespace quelby::app {

// The item's small menu on the bus (com.canonical.dbusmenu), for hosts that know nothing else and for the
// second button: the dashboard, what the title shows, the settings, quitting.
class TrayMenu final : public DBusObject {
public:
    // The actions outlive the menu, and may change.
    TrayMenu(const QDBusConnection& bus, const QString& path, const StatusItemActions& actions);

    // Marks the display that is chosen.
    void setDisplay(MenuBarDisplay display);

private:
    [[nodiscard]] QVariantMap properties() const override;
    [[nodiscard]] QString members() const override;
    bool call(const QDBusMessage& message) override;

    [[nodiscard]] DBusMenuRow menu() const;
    [[nodiscard]] QVariantMap propertiesOf(int id) const;
    void answerLayout(const QDBusMessage& message) const;
    void answerGroupProperties(const QDBusMessage& message) const;
    void choose(int id) const;

    const StatusItemActions& actions_;
    MenuBarDisplay display_ = MenuBarDisplay::watts;
    uint revision_ = 1;
};

} // namespace quelby::app
