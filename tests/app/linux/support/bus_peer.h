#pragma once

#include <vector>

#include <QDBusMessage>
#include <QObject>
#include <QVariantList>

#include "app/linux/support/private_bus.h"

namespace quelby {

// An object on the bus, as its callers name it.
struct BusObject {
    QString service;
    QString path;
    QString interface;
};

// Somebody else on the bus, who calls objects and hears their signals.
class BusPeer : public QObject {
    Q_OBJECT

public:
    BusPeer() = default;

    // Runs the event loop until the answer is there: the object may be this process's.
    [[nodiscard]] QDBusMessage call(const BusObject& object, const QString& method,
                                    const QVariantList& arguments = {});

    // An error where there is no such property.
    [[nodiscard]] QVariant property(const BusObject& object, const QString& name);
    [[nodiscard]] QVariantMap properties(const BusObject& object);

    // Hears every signal of the service's item, of its menu and of their properties from now on.
    void listen(const QString& service);

    // The names of the signals since the last time, in order. All that the object has sent before is there:
    // it is asked something first, and messages keep their order.
    [[nodiscard]] std::vector<std::string> signalsSoFar(const BusObject& object);

    // The arguments of the last signal of that name.
    [[nodiscard]] QVariantList lastArguments(const QString& signal) const;

    [[nodiscard]] QDBusConnection& bus() { return *connection_; }

private Q_SLOTS:

    void heard(const QDBusMessage& signal) { heard_.push_back(signal); }

private:
    BusConnection connection_;
    std::vector<QDBusMessage> heard_;
    std::size_t reported_ = 0;
};

} // namespace quelby
