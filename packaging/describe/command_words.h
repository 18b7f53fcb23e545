// The command line of a program, as its own help describes it, for completions and man pages.
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace quelby::packaging {

// What stands behind an option or a command.
enum class Argument { none, anything, file, folder, oneOfWords };

struct OptionWords {
    std::vector<std::string> names; // with their dashes, the long one first; none: it stands for itself
    std::string help;
    std::string type; // as the help names it, empty where nothing follows
    Argument argument = Argument::none;
    std::vector<std::string> words; // of oneOfWords
    bool isRequired = false;
};

struct CommandWords {
    std::string name;
    std::string help;
    std::vector<OptionWords> options;
    std::vector<OptionWords> positionals; // by themselves, in order
    std::vector<CommandWords> commands;
};

// A type such as "show|on|PERCENT" stands for its words; those in capitals are no words but stand for others.
[[nodiscard]] CommandWords commandWords(const CLI::App& app);

} // namespace quelby::packaging
