#include "platform/macos/plain_numbers.h"

#include <string_view>

namespace quelby {

namespace {

constexpr std::string_view everything = "LC_ALL="; // goes before each of the others
constexpr std::string_view characters = "LC_CTYPE=";
constexpr std::string_view numbers = "LC_NUMERIC=";

// Takes the variable out, and gives its value; empty counts as absent, as in setlocale().
std::string taken(std::vector<std::string>& environment, std::string_view name) {
    std::string value;
    std::erase_if(environment, [&](const std::string& variable) {
        const bool isNamed = variable.starts_with(name);
        value = isNamed ? variable.substr(name.size()) : value;
        return isNamed;
    });
    return value;
}

} // namespace

std::vector<std::string> withPlainNumbers(std::vector<std::string> environment) {
    taken(environment, numbers);
    environment.push_back(std::string(numbers) + "C");
    if (const auto language = taken(environment, everything); !language.empty()) {
        taken(environment, characters);
        environment.push_back(std::string(characters) + language);
    }
    return environment;
}

} // namespace quelby
