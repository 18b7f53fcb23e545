#include "app/linux/session/dbus_types.h"

#include <QDBusMetaType>
#include <QDBusVariant>
#include <QtEndian>

namespace quelby::app {

DBusPicture dbusPicture(const QImage& image) {
    const auto argb = image.convertToFormat(QImage::Format_ARGB32);
    DBusPicture picture{argb.width(), argb.height(), {}};
    picture.bytes.reserve(argb.sizeInBytes());
    for (int y = 0; y < argb.height(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(argb.constScanLine(y));
        for (int x = 0; x < argb.width(); ++x) {
            const auto pixel = qToBigEndian(line[x]);
            picture.bytes.append(reinterpret_cast<const char*>(&pixel), sizeof pixel);
        }
    }
    return picture;
}

void registerDBusTypes() {
    qDBusRegisterMetaType<DBusPicture>();
    qDBusRegisterMetaType<DBusPictures>();
    qDBusRegisterMetaType<DBusToolTip>();
    qDBusRegisterMetaType<DBusMenuRow>();
    qDBusRegisterMetaType<DBusMenuProperties>();
    qDBusRegisterMetaType<DBusMenuPropertiesList>();
}

QDBusArgument& operator<<(QDBusArgument& argument, const DBusPicture& picture) {
    argument.beginStructure();
    argument << picture.width << picture.height << picture.bytes;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusPicture& picture) {
    argument.beginStructure();
    argument >> picture.width >> picture.height >> picture.bytes;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const DBusToolTip& toolTip) {
    argument.beginStructure();
    argument << toolTip.iconName << toolTip.icon << toolTip.title << toolTip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusToolTip& toolTip) {
    argument.beginStructure();
    argument >> toolTip.iconName >> toolTip.icon >> toolTip.title >> toolTip.text;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuRow& row) {
    argument.beginStructure();
    argument << row.id << row.properties;
    argument.beginArray(QMetaType::fromType<QDBusVariant>());
    for (const auto& below : row.rows) {
        argument << QDBusVariant(QVariant::fromValue(below));
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuRow& row) {
    argument.beginStructure();
    argument >> row.id >> row.properties;
    argument.beginArray();
    while (!argument.atEnd()) {
        QDBusVariant below;
        argument >> below;
        row.rows.append(qdbus_cast<DBusMenuRow>(below.variant()));
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const DBusMenuProperties& row) {
    argument.beginStructure();
    argument << row.id << row.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, DBusMenuProperties& row) {
    argument.beginStructure();
    argument >> row.id >> row.properties;
    argument.endStructure();
    return argument;
}

} // namespace quelby::app
