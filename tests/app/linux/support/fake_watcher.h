#pragma once

#include <optional>
#include <string>
#include <vector>

#include <QDBusVirtualObject>

#include "app/linux/support/private_bus.h"

namespace quelby {

// The program that collects the status items of the session, under the process name of one that exists. A
// later one takes the place of an earlier one.
class FakeWatcher final : public QDBusVirtualObject {
public:
    explicit FakeWatcher(const std::string& processName);
    FakeWatcher(const FakeWatcher&) = delete;
    FakeWatcher& operator=(const FakeWatcher&) = delete;
    ~FakeWatcher() override; // leaves the bus

    // The services of the items that registered here.
    std::vector<QString> items;

    // Whether a panel shows them; nothing where the watcher does not say.
    std::optional<bool> hasHost;

    bool isMute = false; // on being asked for it

    // A panel comes, or goes.
    void setHost(bool present);

    // Drops the item.
    void giveUp(const QString& item);

    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    BusConnection bus_;
};

} // namespace quelby
