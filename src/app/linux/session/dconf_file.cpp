#include "app/linux/session/dconf_file.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>

namespace quelby::app {

namespace {

// A table of the kind that GLib's programs map into memory (GVDB): a header that says where the table is; in the table
// two numbers, the words of a filter, the buckets of a hash, and then the items, of which each has the last part of its
// name and says which other item has the part before it.
constexpr std::string_view signature =
    "GVariant"; // of a file in this byte order, which is that of all these machines
constexpr std::size_t rootOffset = 16;
constexpr std::size_t itemSize = 24;
constexpr std::uint32_t filterWords = 0x07FFFFFF; // of the first number; what is above is another one
constexpr std::uint32_t noParent = 0xFFFFFFFF;
constexpr int deepest = 64; // names within names

template <typename Number>
Number numberAt(std::string_view data, std::size_t offset) {
    Number number{};
    std::memcpy(&number, data.data() + offset, sizeof number);
    return number;
}

// Nothing where it is not within the data.
std::optional<std::string_view> part(std::string_view data, std::size_t start, std::size_t size) {
    return start <= data.size() && size <= data.size() - start ? std::optional(data.substr(start, size))
                                                               : std::nullopt;
}

std::optional<std::string_view> pointedAt(std::string_view data, std::string_view pointer) {
    const auto start = numberAt<std::uint32_t>(pointer, 0);
    const auto end = numberAt<std::uint32_t>(pointer, 4);
    return end < start ? std::nullopt : part(data, start, end - start);
}

class Items {
public:
    Items(std::string_view file, std::string_view items) : file_(file), items_(items) {}

    [[nodiscard]] std::size_t count() const { return items_.size() / itemSize; }

    // Empty where it is broken.
    [[nodiscard]] std::string name(std::size_t index) const {
        std::string name;
        for (int i = 0; i < deepest; ++i) {
            const auto item = at(index);
            const auto own = part(file_, numberAt<std::uint32_t>(item, 8), numberAt<std::uint16_t>(item, 12));
            if (!own) {
                return {};
            }
            name.insert(0, *own);
            const auto parent = numberAt<std::uint32_t>(item, 4);
            if (parent == noParent) {
                return name;
            }
            if (parent >= count()) {
                return {};
            }
            index = parent;
        }
        return {};
    }

    // Nothing of what is not a value.
    [[nodiscard]] std::optional<std::string_view> value(std::size_t index) const {
        const auto item = at(index);
        return item[14] == 'v' ? pointedAt(file_, item.substr(16)) : std::nullopt;
    }

private:
    [[nodiscard]] std::string_view at(std::size_t index) const {
        return items_.substr(index * itemSize, itemSize);
    }

    std::string_view file_;
    std::string_view items_;
};

// The value itself, a zero, and the letter of its kind.
std::optional<DconfValues::mapped_type> plainValue(std::string_view value) {
    if (value.size() < 3 || value[value.size() - 2] != '\0') {
        return std::nullopt;
    }
    const auto data = value.substr(0, value.size() - 2);
    switch (value.back()) {
    case 'b':
        return data.size() == 1 ? std::optional(data.front() != 0) : std::nullopt;
    case 'd':
        return data.size() == sizeof(double) ? std::optional(numberAt<double>(data, 0)) : std::nullopt;
    case 's':
        return data.back() == '\0' ? std::optional(std::string(data.substr(0, data.size() - 1)))
                                   : std::nullopt;
    default:
        return std::nullopt;
    }
}

std::optional<Items> itemsOf(std::string_view file) {
    if (!file.starts_with(signature) || file.size() < rootOffset + 8) {
        return std::nullopt;
    }
    const auto root = pointedAt(file, file.substr(rootOffset));
    if (!root || root->size() < 8) {
        return std::nullopt;
    }
    const std::size_t words = (numberAt<std::uint32_t>(*root, 0) & filterWords) +
                              static_cast<std::size_t>(numberAt<std::uint32_t>(*root, 4));
    const auto start = 8 + 4 * words;
    return start > root->size() ? std::nullopt : std::optional(Items(file, root->substr(start)));
}

} // namespace

DconfValues dconfValues(std::string_view content) {
    DconfValues values;
    const auto items = itemsOf(content);
    for (std::size_t i = 0; items && i < items->count(); ++i) {
        const auto stored = items->value(i);
        const auto value = stored ? plainValue(*stored) : std::nullopt;
        if (auto name = value ? items->name(i) : std::string(); !name.empty()) {
            values.insert_or_assign(std::move(name), *value);
        }
    }
    return values;
}

} // namespace quelby::app
