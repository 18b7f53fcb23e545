#include "app/linux/session/single_instance.h"

#include <QDBusConnectionInterface>
#include <QDBusReply>

namespace quelby::app {

namespace {

const auto applicationInterface = QStringLiteral("org.freedesktop.Application");

// By the rule of the interface: the name with slashes in place of its points.
QString objectPath(const QString& service) {
    return '/' + QString(service).replace('.', '/');
}

QVariantMap platformData() {
    const auto token = qgetenv("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? QVariantMap()
                           : QVariantMap{{QStringLiteral("activation-token"), QString::fromUtf8(token)}};
}

} // namespace

SingleInstance::SingleInstance(const QDBusConnection& bus, const QString& service, std::function<void()> show)
    : DBusObject(bus, objectPath(service), applicationInterface)
    , bus_(bus)
    , service_(service)
    , show_(std::move(show)) {}

// The object is there before the name, so that whoever finds the name finds it.
SingleInstance::Rank SingleInstance::claim() {
    auto* const interface = bus_.interface();
    const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> reply = interface->registerService(
        service_, QDBusConnectionInterface::DontQueueService, QDBusConnectionInterface::DontAllowReplacement);
    if (!reply.isValid()) {
        return Rank::alone;
    }
    if (reply.value() == QDBusConnectionInterface::ServiceRegistered) {
        return Rank::first;
    }
    auto message =
        QDBusMessage::createMethodCall(service_, path(), applicationInterface, QStringLiteral("Activate"));
    message.setArguments({platformData()});
    static_cast<void>(bus_.call(message)); // waited for: this program ends now
    return Rank::second;
}

QString SingleInstance::members() const {
    return methodText("Activate", {"a{sv}"}) + methodText("Open", {"as", "a{sv}"}) +
           methodText("ActivateAction", {"s", "av", "a{sv}"});
}

bool SingleInstance::call(const QDBusMessage& message) {
    const auto member = message.member();
    if (member != QLatin1String("Activate") && member != QLatin1String("Open") &&
        member != QLatin1String("ActivateAction")) {
        return false;
    }
    reply(message);
    if (member != QLatin1String("ActivateAction")) { // there are no actions
        show_();
    }
    return true;
}

} // namespace quelby::app
