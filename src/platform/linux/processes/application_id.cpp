#include "platform/linux/processes/application_id.h"

#include <charconv>
#include <optional>

#include "base/number_text.h"

namespace quelby {

namespace {

// The text up to the separator, which goes as well; the rest stays in `text`.
std::string_view takeUpTo(char separator, std::string_view& text) {
    const auto end = text.find(separator);
    const auto part = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return part;
}

bool takeSuffix(std::string_view suffix, std::string_view& text) {
    const bool has = text.ends_with(suffix);
    text.remove_suffix(has ? suffix.size() : 0);
    return has;
}

std::string unescaped(std::string_view text) {
    std::string plain;
    while (!text.empty()) {
        unsigned char byte = 0;
        if (text.starts_with("\\x") && text.size() >= 4 &&
            std::from_chars(text.data() + 2, text.data() + 4, byte, 16).ptr == text.data() + 4) {
            plain += static_cast<char>(byte);
            text.remove_prefix(4);
        } else {
            plain += text.front();
            text.remove_prefix(1);
        }
    }
    return plain;
}

// The application in a unit's name, still escaped; nothing where the unit is no application's.
std::optional<std::string_view> applicationOf(std::string_view unit) {
    constexpr std::string_view prefix = "app-";
    if (!unit.starts_with(prefix)) {
        return std::nullopt;
    }
    unit.remove_prefix(prefix.size());
    if (takeSuffix(".scope", unit)) {
        const auto random = unit.rfind('-');
        if (random == std::string_view::npos) {
            return std::nullopt;
        }
        unit = unit.substr(0, random);
    } else if (takeSuffix(".service", unit)) {
        unit = unit.substr(0, unit.find('@'));
    } else {
        return std::nullopt;
    }
    return unit.substr(unit.rfind('-') + 1); // all of it where no launcher stands before
}

} // namespace

std::string applicationId(std::string_view cgroups) {
    while (!cgroups.empty()) {
        auto path = takeUpTo('\n', cgroups);
        std::optional<std::string_view> innermost;
        while (!path.empty()) {
            if (const auto application = applicationOf(takeUpTo('/', path))) {
                innermost = application;
            }
        }
        if (innermost) {
            return unescaped(*innermost);
        }
    }
    return {};
}

std::string_view desktopEntryName(std::string_view entry) {
    bool inside = false;
    while (!entry.empty()) {
        const auto line = takeUpTo('\n', entry);
        if (line.starts_with('[')) {
            inside = withoutBlanks(line) == "[Desktop Entry]";
        }
        const auto equals = line.find('=');
        if (inside && equals != std::string_view::npos && withoutBlanks(line.substr(0, equals)) == "Name") {
            return withoutBlanks(line.substr(equals + 1));
        }
    }
    return {};
}

} // namespace quelby
