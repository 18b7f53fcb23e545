#pragma once

#include <gtest/gtest.h>

#include "app/linux/support/bus_peer.h"
#include "app/linux/tray/status_notifier_item.h"
#include "ui/support/printing.h"

namespace quelby::app {

inline const ItemContent content{"battery.75percent",
                                 80,
                                 "-12W",
                                 "80 % discharging",
                                 MenuBarDisplay::watts,
                                 StatusInk{lightInk, std::nullopt}};

// An item on a bus, seen from its other end.
class StatusNotifierItemTest : public testing::Test {
protected:
    StatusNotifierItemTest() {
        registerDBusTypes();
        peer.listen(connection->baseService());
    }

    void showAt(std::string_view host) {
        item.setHost(trayHost(host));
        item.show(content);
        static_cast<void>(signalsSoFar());
    }

    [[nodiscard]] QVariant property(const QString& name) { return peer.property(object, name); }

    [[nodiscard]] std::vector<std::string> signalsSoFar() { return peer.signalsSoFar(object); }

    [[nodiscard]] QDBusMessage call(const QString& method, const QVariantList& arguments = {}) {
        return peer.call(object, method, arguments);
    }

    PrivateBus bus;
    BusConnection connection;
    BusPeer peer;
    std::vector<std::string> done;
    std::optional<QPoint> pressedAt;
    bool acts = true;
    std::vector<QByteArray> tokens;
    StatusItemActions actions{
        .toggle = [this] { done.emplace_back("toggle"); },
        .scroll = [this](int steps) { done.push_back("scroll " + std::to_string(steps)); }};
    StatusNotifierItem item{*connection, actions,
                            [this](std::optional<QPoint> where) {
                                pressedAt = where;
                                done.emplace_back("press");
                                return acts;
                            },
                            [this](const QByteArray& token) { tokens.push_back(token); }};
    BusObject object{connection->baseService(), "/StatusNotifierItem", "org.kde.StatusNotifierItem"};
};

} // namespace quelby::app
