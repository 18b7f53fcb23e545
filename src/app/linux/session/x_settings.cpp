#include "app/linux/session/x_settings.h"

#include <QDataStream>

namespace quelby::app {

namespace {

enum class Kind : std::uint8_t { number = 0, text = 1, color = 2 };

constexpr std::uint8_t littleEndian = 0;
constexpr int colorSize = 8;

// Texts are filled up to whole words.
int paddingAfter(int size) {
    return (4 - size % 4) % 4;
}

std::string readText(QDataStream& stream, std::uint32_t size) {
    const auto left = stream.device()->bytesAvailable();
    if (size > static_cast<std::uint64_t>(left)) {
        stream.setStatus(QDataStream::ReadPastEnd);
        return {};
    }
    std::string text(size, '\0');
    stream.readRawData(text.data(), static_cast<int>(size));
    stream.skipRawData(paddingAfter(static_cast<int>(size)));
    return text;
}

} // namespace

XSettings::XSettings(const QByteArray& property) {
    QDataStream stream(property);
    std::uint8_t order = 0;
    stream >> order;
    stream.setByteOrder(order == littleEndian ? QDataStream::LittleEndian : QDataStream::BigEndian);
    stream.skipRawData(3);
    std::uint32_t serial = 0;
    std::uint32_t count = 0;
    stream >> serial >> count;
    for (std::uint32_t i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        std::uint8_t kind = 0;
        std::uint8_t unused = 0;
        std::uint16_t nameSize = 0;
        stream >> kind >> unused >> nameSize;
        auto name = readText(stream, nameSize);
        stream >> serial;
        std::int32_t number = 0;
        std::uint32_t size = 0;
        switch (static_cast<Kind>(kind)) {
        case Kind::number:
            stream >> number;
            if (stream.status() == QDataStream::Ok) {
                values_.insert_or_assign(std::move(name), number);
            }
            break;
        case Kind::text: {
            stream >> size;
            auto text = readText(stream, size);
            if (stream.status() == QDataStream::Ok) {
                values_.insert_or_assign(std::move(name), std::move(text));
            }
            break;
        }
        case Kind::color:
            stream.skipRawData(colorSize);
            break;
        default:
            return; // nobody knows where the next one begins
        }
    }
}

std::optional<std::int32_t> XSettings::number(std::string_view name) const {
    const auto found = values_.find(name);
    const auto* const value = found == values_.end() ? nullptr : std::get_if<std::int32_t>(&found->second);
    return value == nullptr ? std::nullopt : std::optional(*value);
}

std::optional<std::string> XSettings::text(std::string_view name) const {
    const auto found = values_.find(name);
    const auto* const value = found == values_.end() ? nullptr : std::get_if<std::string>(&found->second);
    return value == nullptr ? std::nullopt : std::optional(*value);
}

} // namespace quelby::app
