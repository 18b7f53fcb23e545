#include <fmt/format.h>
#include <fmt/ranges.h>

#include "base/version.h"
#include "packaging/describe/texts.h"

namespace quelby::packaging {

namespace {

// A hyphen that is typed, and no line that looks like a request.
std::string roff(std::string_view text) {
    std::string escaped = !text.empty() && (text.front() == '.' || text.front() == '\'') ? "\\&" : "";
    for (const char letter : text) {
        escaped += letter == '-' ? "\\-" : letter == '\\' ? "\\e" : std::string(1, letter);
    }
    return escaped;
}

std::string nameAndArgument(const OptionWords& option) {
    std::vector<std::string> names;
    for (const auto& name : option.names) {
        names.push_back("\\fB" + roff(name) + "\\fR");
    }
    const auto type = option.type.empty() ? "" : fmt::format(" \\fI{}\\fR", roff(option.type));
    return fmt::format("{}{}", fmt::join(names, ", "), type);
}

std::string optionEntries(const CommandWords& command) {
    std::string text;
    for (const auto& option : command.options) {
        text += fmt::format(".TP\n{}\n{}.\n", nameAndArgument(option), roff(option.help));
    }
    return text;
}

std::string positionalText(const OptionWords& positional) {
    const auto type = roff(positional.type.empty() ? "FILE" : positional.type);
    return positional.isRequired ? fmt::format(" \\fI{}\\fR", type) : fmt::format(" [\\fI{}\\fR]", type);
}

std::string commandEntries(const CommandWords& program) {
    std::string text;
    for (const auto& command : program.commands) {
        text += fmt::format(".SS \"{}", roff(command.name));
        for (const auto& positional : command.positionals) {
            text += positionalText(positional);
        }
        text += fmt::format("\"\n{}.\n", roff(command.help));
        for (const auto& option : command.options) {
            if (option.names.front() != "--help") {
                text += fmt::format(".TP\n{}\n{}.\n", nameAndArgument(option), roff(option.help));
            }
        }
    }
    return text;
}

void replace(std::string& text, std::string_view mark, const std::string& words) {
    for (auto place = text.find(mark); place != std::string::npos;
         place = text.find(mark, place + words.size())) {
        text.replace(place, mark.size(), words);
    }
}

} // namespace

std::string manPage(const CommandWords& program, std::string_view page) {
    std::string text(page);
    replace(text, "@commands@\n", commandEntries(program));
    replace(text, "@options@\n", optionEntries(program));
    replace(text, "@version@", std::string(version()));
    replace(text, "@date@", QUELBY_VERSION_DATE);
    return text;
}

} // namespace quelby::packaging
