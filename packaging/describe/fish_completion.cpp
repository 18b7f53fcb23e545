#include <fmt/format.h>

#include "packaging/describe/texts.h"

namespace quelby::packaging {

namespace {

// Within single quotes fish knows no escapes but these two.
std::string quoted(std::string_view text) {
    std::string result = "'";
    for (const char letter : text) {
        result += letter == '\'' || letter == '\\' ? "\\" : "";
        result += letter;
    }
    return result + '\'';
}

std::string argument(const OptionWords& option) {
    std::string words;
    switch (option.argument) {
    case Argument::none:
        return {};
    case Argument::anything:
        return " -x";
    case Argument::file:
        return " -r -F";
    case Argument::folder:
        return " -x -a '(__fish_complete_directories)'";
    case Argument::oneOfWords:
        for (const auto& word : option.words) {
            words += (words.empty() ? "" : " ") + quoted(word);
        }
        return " -x -a " + quoted(words);
    }
    return {};
}

std::string names(const OptionWords& option) {
    std::string text;
    for (const auto& name : option.names) {
        text += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
    }
    return text;
}

std::string lines(const std::string& program, const CommandWords& command, const std::string& condition) {
    std::string text;
    for (const auto& option : command.options) {
        text += fmt::format("complete -c {}{}{}{} -d {}\n", program, condition, names(option),
                            argument(option), quoted(option.help));
    }
    for (const auto& positional : command.positionals) {
        const auto words = argument(positional);
        text += positional.argument == Argument::file
                    ? fmt::format("complete -c {}{} -F\n", program, condition)
                    : fmt::format("complete -c {}{}{}\n", program, condition, words);
    }
    return text;
}

} // namespace

std::string fishCompletion(const CommandWords& program) {
    auto text = fmt::format("# Completion of {0} for fish.\ncomplete -c {0} -f\n", program.name);
    text += lines(program.name, program, "");
    for (const auto& command : program.commands) {
        text += fmt::format("complete -c {} -n __fish_use_subcommand -a {} -d {}\n", program.name,
                            command.name, quoted(command.help));
        text += lines(program.name, command,
                      fmt::format(" -n {}", quoted("__fish_seen_subcommand_from " + command.name)));
    }
    return text;
}

} // namespace quelby::packaging
