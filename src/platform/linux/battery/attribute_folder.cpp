#include "platform/linux/battery/attribute_folder.h"

#include <algorithm>
#include <array>
#include <string_view>

#include <fcntl.h>

#include "base/number_text.h"

namespace quelby {

namespace {

using namespace std::string_view_literals;

// The kernel gives an attribute one page at most: what fills the buffer is something else.
constexpr std::size_t page = 4096;

std::string_view trimmed(std::string_view text) {
    constexpr auto padding = " \t\r\n\v\f\0"sv;
    const auto first = text.find_first_not_of(padding);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(padding) - first + 1);
}

char smallLetter(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

} // namespace

AttributeFolder::AttributeFolder(const std::filesystem::path& folder)
    : folder_(::open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)) {}

std::optional<std::string> AttributeFolder::word(const char* name) const {
    const FileDescriptor file(::openat(folder_.number(), name, O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file.isOpen()) {
        return std::nullopt;
    }
    std::array<char, page> buffer = {};
    const auto length = ::read(file.number(), buffer.data(), buffer.size());
    if (length <= 0 || static_cast<std::size_t>(length) == buffer.size()) {
        return std::nullopt;
    }
    std::string text(trimmed({buffer.data(), static_cast<std::size_t>(length)}));
    std::transform(text.begin(), text.end(), text.begin(), smallLetter);
    return text.empty() ? std::nullopt : std::optional(text);
}

std::optional<std::int64_t> AttributeFolder::number(const char* name) const {
    const auto text = word(name);
    return text ? wholeNumber(*text) : std::nullopt;
}

} // namespace quelby
