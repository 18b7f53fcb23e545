#pragma once

#include <functional>

#include "app/linux/session/dbus_object.h"

namespace quelby::app {

// The program as an application of the session's bus (org.freedesktop.Application): a second start finds the
// first one here and asks it to show itself.
class SingleInstance final : public DBusObject {
public:
    // The service's name is the program's; `show` is what a second start asks for.
    SingleInstance(const QDBusConnection& bus, const QString& service, std::function<void()> show);

    enum class Rank { first, second, alone };

    // Takes the service's name. A second start has asked the first one to show itself by then; one is alone
    // where the bus gives out no names.
    [[nodiscard]] Rank claim();

private:
    [[nodiscard]] QVariantMap properties() const override { return {}; }

    [[nodiscard]] QString members() const override;
    bool call(const QDBusMessage& message) override;

    QDBusConnection bus_;
    QString service_;
    std::function<void()> show_;
};

} // namespace quelby::app
