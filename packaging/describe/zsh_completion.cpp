#include <fmt/format.h>

#include "packaging/describe/texts.h"
#include "platform/installer/shell_quoting.h"

namespace quelby::packaging {

namespace {

std::string withBackslashBefore(std::string_view marks, std::string_view text) {
    std::string escaped;
    for (const char letter : text) {
        if (marks.find(letter) != std::string_view::npos) {
            escaped += '\\';
        }
        escaped += letter;
    }
    return escaped;
}

std::string action(const OptionWords& option) {
    std::string words;
    switch (option.argument) {
    case Argument::file:
        return "_files";
    case Argument::folder:
        return "_files -/";
    case Argument::oneOfWords:
        for (const auto& word : option.words) {
            words += ' ' + withBackslashBefore(" ()%:", word);
        }
        return " compadd --" + words;
    case Argument::anything:
    case Argument::none:
        break;
    }
    return " ";
}

// ":MESSAGE:ACTION", or nothing where nothing follows.
std::string argument(const OptionWords& option) {
    if (option.argument == Argument::none) {
        return {};
    }
    const bool isList = option.argument == Argument::oneOfWords;
    return fmt::format(":{}:{}", isList ? "one of" : option.type, action(option));
}

std::string optionSpecifications(const CommandWords& command, std::string_view indentation) {
    std::string text;
    for (const auto& option : command.options) {
        for (const auto& name : option.names) {
            const auto help = withBackslashBefore("[]:\\", option.help);
            const auto* const equals = option.argument == Argument::none || name[1] != '-' ? "" : "=";
            text += fmt::format("{}{}\n", indentation,
                                shellQuoted(fmt::format("{}{}[{}]{}", name, equals, help, argument(option))));
        }
    }
    return text;
}

std::string commandDescriptions(const CommandWords& program) {
    std::string text;
    for (const auto& command : program.commands) {
        text += fmt::format("            {}\n", shellQuoted(command.name + ':' + command.help));
    }
    return text;
}

std::string commandCase(const CommandWords& command) {
    auto text = fmt::format("            {})\n                _arguments $common \\\n", command.name);
    std::string specifications = optionSpecifications(command, "");
    for (const auto& positional : command.positionals) {
        specifications += shellQuoted("1" + argument(positional)) + '\n';
    }
    for (std::size_t start = 0; start < specifications.size();) {
        const auto end = specifications.find('\n', start);
        const bool isLast = end + 1 == specifications.size();
        text += fmt::format("                    {}{}\n", specifications.substr(start, end - start),
                            isLast ? "" : " \\");
        start = end + 1;
    }
    return text + "                ;;\n";
}

} // namespace

std::string zshCompletion(const CommandWords& program) {
    auto text =
        fmt::format("#compdef {}\n# Completion of {} for zsh.\n\n"
                    "local curcontext=$curcontext state line\nlocal -a common commands\ncommon=(\n{})\n",
                    program.name, program.name, optionSpecifications(program, "    "));
    if (program.commands.empty()) {
        return text + "_arguments $common\n";
    }
    text += "_arguments -C $common '1: :->command' '*:: :->arguments' && return\n"
            "case $state in\n    command)\n        commands=(\n" +
            commandDescriptions(program) +
            "        )\n        _describe -t commands command commands\n        ;;\n"
            "    arguments)\n        case $words[1] in\n";
    for (const auto& command : program.commands) {
        text += commandCase(command);
    }
    return text + "        esac\n        ;;\nesac\n";
}

} // namespace quelby::packaging
