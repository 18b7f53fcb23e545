#pragma once

#include <functional>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QVariantMap>

namespace quelby::app {

// A method or a signal in the language of introspection, by the signatures of its arguments.
[[nodiscard]] QString methodText(const QString& name, const QStringList& in = {},
                                 const QStringList& out = {});
[[nodiscard]] QString signalText(const QString& name, const QStringList& arguments = {});

// An object on the bus with one interface. What it offers can change while it is there, which an interface
// that Qt makes from a class's declaration cannot.
class DBusObject : public QDBusVirtualObject {
public:
    DBusObject(QDBusConnection bus, QString path, QString interface);
    DBusObject(const DBusObject&) = delete;
    DBusObject& operator=(const DBusObject&) = delete;
    ~DBusObject() override;

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

    [[nodiscard]] const QString& path() const { return path_; }

protected:
    void emitSignal(const QString& name, const QVariantList& arguments = {}) const;

    // For those who follow the properties by the bus's own rules.
    void emitPropertiesChanged(const QVariantMap& properties) const;

    void reply(const QDBusMessage& call, const QVariantList& values = {}) const;

    // Answers that it has failed.
    void refuse(const QDBusMessage& call) const;

private:
    // All that there are at present.
    [[nodiscard]] virtual QVariantMap properties() const = 0;

    // Methods and signals, from methodText() and signalText().
    [[nodiscard]] virtual QString members() const = 0;

    // Answers the call, or says that there is no such method.
    virtual bool call(const QDBusMessage& message) = 0;

    bool answerProperties(const QDBusMessage& message) const;

    QDBusConnection bus_;
    QString path_;
    QString interface_;
};

} // namespace quelby::app
