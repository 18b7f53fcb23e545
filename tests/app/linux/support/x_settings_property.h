#pragma once

#include <map>
#include <string>
#include <variant>

#include <QByteArray>
#include <QDataStream>
#include <QIODevice>

namespace quelby {

using XSettingValues = std::map<std::string, std::variant<int, std::string>>;

// The settings as their manager keeps them on its window.
inline QByteArray xSettingsProperty(const XSettingValues& values,
                                    QDataStream::ByteOrder order = QDataStream::LittleEndian) {
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setByteOrder(order);
    const auto filledUp = [&](const std::string& text) {
        stream.writeRawData(text.data(), static_cast<int>(text.size()));
        stream.writeRawData("\0\0\0", static_cast<int>((4 - text.size() % 4) % 4));
    };
    stream << static_cast<quint32>(0) << static_cast<quint32>(7) << static_cast<quint32>(values.size());
    bytes[0] = order == QDataStream::LittleEndian ? '\0' : '\1';
    for (const auto& [name, value] : values) {
        const auto* const text = std::get_if<std::string>(&value);
        stream << static_cast<quint8>(text == nullptr ? 0 : 1) << static_cast<quint8>(0)
               << static_cast<quint16>(name.size());
        filledUp(name);
        stream << static_cast<quint32>(7);
        if (text == nullptr) {
            stream << static_cast<qint32>(std::get<int>(value));
        } else {
            stream << static_cast<quint32>(text->size());
            filledUp(*text);
        }
    }
    return bytes;
}

} // namespace quelby
