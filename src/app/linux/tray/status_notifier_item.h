#pragma once

#include <optional>

#include <QPoint>
#include <QTemporaryDir>

#include "app/linux/session/dbus_object.h"
#include "app/linux/tray/item_content.h"
#include "app/linux/tray/status_icon.h"
#include "app/linux/tray/tray_host.h"
#include "app/linux/tray/tray_menu.h"
#include "app/linux/tray/wheel_steps.h"

namespace quelby::app {

// The status item on the session bus, by the StatusNotifierItem protocol with the label that Ayatana's hosts
// added to it. It offers what its host makes the best of, and signals only what has changed.
class StatusNotifierItem final : public DBusObject {
public:
    // Hears of each press first: where it was, in pixels of the screen, where that is known. Says whether it
    // is to be acted on.
    using PressListener = std::function<bool(std::optional<QPoint> where)>;

    // Takes the token that allows the window of the next press to come to the front, which the press then
    // uses.
    using TokenListener = std::function<void(const QByteArray& token)>;

    // The actions outlive the item, and may change.
    StatusNotifierItem(const QDBusConnection& bus, const StatusItemActions& actions, PressListener pressed,
                       TokenListener given);

    // Whoever shows the item from now on.
    void setHost(const TrayHost& host);

    void show(const ItemContent& content);

private:
    [[nodiscard]] QVariantMap properties() const override;
    [[nodiscard]] QString members() const override;
    bool call(const QDBusMessage& message) override;

    [[nodiscard]] const DBusPictures& pictures() const;
    [[nodiscard]] DBusPictures drawn() const;
    [[nodiscard]] QString iconName() const;
    [[nodiscard]] bool draws(const ItemContent& former) const;
    [[nodiscard]] DBusToolTip toolTip() const;
    void press(const QDBusMessage& message);
    void scroll(const QDBusMessage& message);
    void announceIcon();
    void announceLabel();
    void announceToolTip();
    void writeIconFile();

    const StatusItemActions& actions_;
    PressListener pressed_;
    TokenListener given_;
    WheelSteps wheel_;
    TrayMenu menu_;
    TrayHost host_;
    ItemContent content_;
    mutable std::optional<DBusPictures> pictures_; // of what is shown, once a host has asked for them
    mutable std::optional<MeasuredSymbol> symbol_; // that was drawn last, beside a title
    std::optional<QTemporaryDir> iconFolder_;      // for hosts that read icons from files
    int iconNumber_ = 0; // of the file that holds it: such hosts never read one name twice
};

} // namespace quelby::app
