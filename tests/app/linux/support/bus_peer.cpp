#include "app/linux/support/bus_peer.h"

#include <QDBusArgument>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <gtest/gtest.h>

#include "app/linux/support/eventually.h"

namespace quelby {

namespace {

const auto propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

} // namespace

QDBusMessage BusPeer::call(const BusObject& object, const QString& method, const QVariantList& arguments) {
    auto message = QDBusMessage::createMethodCall(object.service, object.path, object.interface, method);
    message.setArguments(arguments);
    const auto answer = connection_->asyncCall(message);
    EXPECT_TRUE(eventually([&] { return answer.isFinished(); })) << method.toStdString();
    return answer.reply();
}

QVariant BusPeer::property(const BusObject& object, const QString& name) {
    const auto answer =
        call({object.service, object.path, propertiesInterface}, "Get", {object.interface, name});
    EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage) << answer.errorMessage().toStdString();
    return answer.arguments().value(0).value<QDBusVariant>().variant();
}

QVariantMap BusPeer::properties(const BusObject& object) {
    const auto answer =
        call({object.service, object.path, propertiesInterface}, "GetAll", {object.interface});
    EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage) << answer.errorMessage().toStdString();
    return qdbus_cast<QVariantMap>(answer.arguments().value(0));
}

void BusPeer::listen(const QString& service) {
    for (const auto* const interface :
         {"org.kde.StatusNotifierItem", "com.canonical.dbusmenu", "org.freedesktop.DBus.Properties"}) {
        EXPECT_TRUE(
            connection_->connect(service, QString(), interface, QString(), this, SLOT(heard(QDBusMessage))));
    }
}

std::vector<std::string> BusPeer::signalsSoFar(const BusObject& object) {
    static_cast<void>(properties(object)); // the object itself answers, and not its connection's thread
    QCoreApplication::sendPostedEvents();
    std::vector<std::string> names;
    for (; reported_ < heard_.size(); ++reported_) {
        names.push_back(heard_[reported_].member().toStdString());
    }
    return names;
}

QVariantList BusPeer::lastArguments(const QString& signal) const {
    const auto found = std::find_if(heard_.rbegin(), heard_.rend(),
                                    [&](const QDBusMessage& message) { return message.member() == signal; });
    return found == heard_.rend() ? QVariantList() : found->arguments();
}

} // namespace quelby
