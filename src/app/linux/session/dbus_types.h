// The structures of the status-notifier and menu protocols, as Qt's D-Bus library wants them described.
#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QImage>
#include <QList>
#include <QString>
#include <QVariantMap>

namespace quelby::app {

// (iiay): a picture of 32-bit ARGB in network byte order, not premultiplied.
struct DBusPicture {
    int width = 0;
    int height = 0;
    QByteArray bytes;
};

using DBusPictures = QList<DBusPicture>;

[[nodiscard]] DBusPicture dbusPicture(const QImage& image);

// (sa(iiay)ss)
struct DBusToolTip {
    QString iconName;
    DBusPictures icon;
    QString title;
    QString text;
};

// (ia{sv}av): a menu's row with the rows below it.
struct DBusMenuRow {
    int id = 0;
    QVariantMap properties;
    QList<DBusMenuRow> rows;
};

// (ia{sv}): a row without those below it.
struct DBusMenuProperties {
    int id = 0;
    QVariantMap properties;
};

using DBusMenuPropertiesList = QList<DBusMenuProperties>;

// To be called before any of these is sent or read.
void registerDBusTypes();

QDBusArgument& operator<<(QDBusArgument& argument, const DBusPicture& picture);
const QDBusArgument& operator>>(const QDBusArgument& argument, DBusPicture& picture);
QDBusArgument& operator<<(QDBusArgument& argument, const DBusToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& argument, DBusToolTip& toolTip);
QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuRow& row);
const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuRow& row);
QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuProperties& row);
const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuProperties& row);

} // namespace quelby::app

Q_DECLARE_METATYPE(quelby::app::DBusPicture)
Q_DECLARE_METATYPE(quelby::app::DBusToolTip)
Q_DECLARE_METATYPE(quelby::app::DBusMenuRow)
Q_DECLARE_METATYPE(quelby::app::DBusMenuProperties)
