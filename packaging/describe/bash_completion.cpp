#include <fmt/format.h>
#include <fmt/ranges.h>

#include "packaging/describe/texts.h"
#include "platform/installer/shell_quoting.h"

namespace quelby::packaging {

namespace {

// What comes before the choices: the word under the cursor, the one before it, and the command.
constexpr std::string_view beginning = R"(# Completion of {program} for bash.

_{program}_words() {{
    local typed=$1 candidate quoted
    shift
    for candidate; do
        printf -v quoted %q "$candidate"
        if [[ $candidate == "$typed"* || $quoted == "$typed"* ]]; then
            COMPREPLY+=("$quoted")
        fi
    done
}}

_{program}_files() {{
    local file
    compopt -o filenames 2>/dev/null
    while IFS= read -r file; do
        COMPREPLY+=("$file")
    done < <(compgen "$2" -- "$1")
}}

_{program}() {{
    local word=${{COMP_WORDS[COMP_CWORD]}} previous=${{COMP_WORDS[COMP_CWORD - 1]}} command='' index
    COMPREPLY=()
    if [[ $word == = ]]; then
        word=''
    elif [[ $previous == = ]]; then
        previous=${{COMP_WORDS[COMP_CWORD - 2]}}
    fi
    for ((index = 1; index < COMP_CWORD; index++)); do
        case ${{COMP_WORDS[index]}} in
            {taking})
                [[ ${{COMP_WORDS[index + 1]}} != = ]] || ((index++))
                ((index++))
                ;;
            -* | =) ;;
            *) command=${{command:-${{COMP_WORDS[index]}}}} ;;
        esac
    done
)";

std::string quotedWords(const std::vector<std::string>& words) {
    std::string text;
    for (const auto& word : words) {
        text += ' ' + shellQuoted(word);
    }
    return text;
}

std::string answer(const std::string& program, const OptionWords& option) {
    switch (option.argument) {
    case Argument::file:
        return fmt::format("_{}_files \"$word\" -f", program);
    case Argument::folder:
        return fmt::format("_{}_files \"$word\" -d", program);
    case Argument::oneOfWords:
        return fmt::format("_{}_words \"$word\"{}", program, quotedWords(option.words));
    case Argument::anything:
    case Argument::none:
        break;
    }
    return ":";
}

bool takesArgument(const OptionWords& option) {
    return option.argument != Argument::none;
}

void addTaking(const CommandWords& command, std::vector<std::string>& names) {
    for (const auto& option : command.options) {
        if (takesArgument(option)) {
            names.insert(names.end(), option.names.begin(), option.names.end());
        }
    }
    for (const auto& below : command.commands) {
        addTaking(below, names);
    }
}

// Behind an option that takes an argument.
std::string argumentCases(const std::string& program, const CommandWords& command, std::string_view pattern) {
    std::string text;
    for (const auto& option : command.options) {
        for (const auto& name : option.names) {
            if (takesArgument(option)) {
                text +=
                    fmt::format("        {}\" {}\")\n            {}\n            return\n            ;;\n",
                                pattern, name, answer(program, option));
            }
        }
    }
    return text;
}

std::vector<std::string> optionNames(const CommandWords& command) {
    std::vector<std::string> names;
    for (const auto& option : command.options) {
        names.insert(names.end(), option.names.begin(), option.names.end());
    }
    return names;
}

// What may stand in its own right behind the command.
std::string commandCase(const std::string& program, const CommandWords& command, const std::string& pattern,
                        const std::vector<std::string>& words) {
    auto text = fmt::format("        {})\n            _{} \"$word\"{}\n", pattern, program + "_words",
                            quotedWords(words));
    for (const auto& positional : command.positionals) {
        text += fmt::format("            [[ $word == -* ]] || {}\n", answer(program, positional));
    }
    return text + "            ;;\n";
}

std::string commandCases(const CommandWords& program) {
    auto first = optionNames(program);
    std::string text;
    for (const auto& command : program.commands) {
        first.push_back(command.name);
        auto words = optionNames(command);
        for (const auto& common : optionNames(program)) {
            if (common != "--help" && common != "-h" && common != "--version") {
                words.push_back(common);
            }
        }
        text += commandCase(program.name, command, command.name, words);
    }
    return text + commandCase(program.name, program, "''", first);
}

} // namespace

std::string bashCompletion(const CommandWords& program) {
    std::vector<std::string> taking;
    addTaking(program, taking);
    auto text = fmt::format(beginning, fmt::arg("program", program.name),
                            fmt::arg("taking", fmt::join(taking, " | ")));
    text += "    case \"$command $previous\" in\n" + argumentCases(program.name, program, "*");
    for (const auto& command : program.commands) {
        text += argumentCases(program.name, command, command.name);
    }
    text += "    esac\n    case $command in\n" + commandCases(program) + "    esac\n}\n\n";
    return text + fmt::format("complete -F _{0} {0}\n", program.name);
}

} // namespace quelby::packaging
