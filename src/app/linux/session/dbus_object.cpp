#include "app/linux/session/dbus_object.h"

#include <QDBusMetaType>
#include <QDBusVariant>

namespace quelby::app {

namespace {

const auto propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

QString argumentText(const QString& signature, const QString& direction) {
    return QStringLiteral(R"(<arg type="%1" direction="%2"/>)").arg(signature, direction);
}

} // namespace

QString methodText(const QString& name, const QStringList& in, const QStringList& out) {
    auto text = QStringLiteral(R"(<method name="%1">)").arg(name);
    for (const auto& signature : in) {
        text += argumentText(signature, QStringLiteral("in"));
    }
    for (const auto& signature : out) {
        text += argumentText(signature, QStringLiteral("out"));
    }
    return text + QStringLiteral("</method>");
}

QString signalText(const QString& name, const QStringList& arguments) {
    auto text = QStringLiteral(R"(<signal name="%1">)").arg(name);
    for (const auto& signature : arguments) {
        text += QStringLiteral(R"(<arg type="%1"/>)").arg(signature);
    }
    return text + QStringLiteral("</signal>");
}

DBusObject::DBusObject(QDBusConnection bus, QString path, QString interface)
    : bus_(std::move(bus)), path_(std::move(path)), interface_(std::move(interface)) {
    bus_.registerVirtualObject(path_, this);
}

DBusObject::~DBusObject() {
    bus_.unregisterObject(path_);
}

QString DBusObject::introspect(const QString& /*path*/) const {
    QString text = QStringLiteral("<interface name=\"%1\">").arg(interface_);
    const auto all = properties();
    for (auto property = all.begin(); property != all.end(); ++property) {
        const auto* const type = QDBusMetaType::typeToSignature(property.value().metaType());
        text += QStringLiteral("<property name=\"%1\" type=\"%2\" access=\"read\"/>")
                    .arg(property.key(), QString::fromLatin1(type));
    }
    return text + members() + QStringLiteral("</interface>");
}

bool DBusObject::handleMessage(const QDBusMessage& message, const QDBusConnection& /*connection*/) {
    if (message.interface() == propertiesInterface) {
        return answerProperties(message);
    }
    const bool ours = message.interface() == interface_;
    if (!ours && !message.interface().isEmpty()) {
        return false;
    }
    const bool known = call(message);
    if (!known && ours) { // Qt would say that there is no such interface
        bus_.send(message.createErrorReply(QDBusError::UnknownMethod, QStringLiteral("no such method")));
    }
    return known || ours;
}

bool DBusObject::answerProperties(const QDBusMessage& message) const {
    const auto arguments = message.arguments();
    if (arguments.isEmpty() || arguments.first().toString() != interface_) {
        return false;
    }
    if (message.member() == QLatin1String("GetAll")) {
        reply(message, {properties()});
        return true;
    }
    if (message.member() != QLatin1String("Get") || arguments.size() < 2) {
        return false;
    }
    const auto all = properties();
    const auto found = all.find(arguments[1].toString());
    if (found == all.end()) {
        bus_.send(message.createErrorReply(QDBusError::UnknownProperty, QStringLiteral("no such property")));
    } else {
        reply(message, {QVariant::fromValue(QDBusVariant(found.value()))});
    }
    return true;
}

void DBusObject::reply(const QDBusMessage& call, const QVariantList& values) const {
    if (call.isReplyRequired()) {
        bus_.send(call.createReply(values));
    }
}

void DBusObject::refuse(const QDBusMessage& call) const {
    bus_.send(call.createErrorReply(QDBusError::Failed, QStringLiteral("refused")));
}

void DBusObject::emitSignal(const QString& name, const QVariantList& arguments) const {
    auto signal = QDBusMessage::createSignal(path_, interface_, name);
    signal.setArguments(arguments);
    bus_.send(signal);
}

void DBusObject::emitPropertiesChanged(const QVariantMap& properties) const {
    auto signal = QDBusMessage::createSignal(path_, propertiesInterface, QStringLiteral("PropertiesChanged"));
    signal.setArguments({interface_, properties, QStringList()});
    bus_.send(signal);
}

} // namespace quelby::app
