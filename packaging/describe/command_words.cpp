#include "packaging/describe/command_words.h"

#include <algorithm>
#include <sstream>

#include <CLI/CLI.hpp>

namespace quelby::packaging {

namespace {

bool isPlaceholder(const std::string& word) {
    return std::all_of(word.begin(), word.end(), [](char letter) { return letter >= 'A' && letter <= 'Z'; });
}

std::vector<std::string> wordsOf(const std::string& type) {
    std::vector<std::string> words;
    std::istringstream stream(type);
    for (std::string word; std::getline(stream, word, '|');) {
        if (!isPlaceholder(word)) {
            words.push_back(word);
        }
    }
    return words;
}

Argument argumentOf(const std::string& type) {
    if (type.find('|') != std::string::npos) {
        return Argument::oneOfWords;
    }
    if (type == "DIR") {
        return Argument::folder;
    }
    return type.starts_with("FILE") ? Argument::file : Argument::anything;
}

OptionWords optionWords(const CLI::Option& option) {
    OptionWords words{.help = option.get_description(), .isRequired = option.get_required()};
    for (const auto& name : option.get_lnames()) {
        words.names.push_back("--" + name);
    }
    for (const auto& name : option.get_snames()) {
        words.names.push_back("-" + name);
    }
    if (option.get_positional() || option.get_items_expected_max() != 0) {
        words.type = option.get_type_name();
        words.argument = argumentOf(words.type);
    }
    if (words.argument == Argument::oneOfWords) {
        words.words = wordsOf(words.type);
    }
    return words;
}

} // namespace

CommandWords commandWords(const CLI::App& app) {
    CommandWords words{.name = app.get_name(), .help = app.get_description()};
    for (const auto* const option : app.get_options()) {
        auto described = optionWords(*option);
        (described.names.empty() ? words.positionals : words.options).push_back(std::move(described));
    }
    for (const auto* const command : app.get_subcommands([](const CLI::App*) { return true; })) {
        words.commands.push_back(commandWords(*command));
    }
    return words;
}

} // namespace quelby::packaging
