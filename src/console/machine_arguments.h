// The command line that both programs share.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include <CLI/CLI.hpp>

#include "platform/host/machine.h"

namespace quelby {

enum class Pace { asAsked, withoutWaiting };

// Which machine to look at, and how fast a recorded one goes.
struct MachineArguments {
    MachineOptions machine;
    Pace pace = Pace::asAsked;
};

// What can be looked at, by --view.
enum class Page { dashboard, settings };

// Throws what CLI11 reports as wrong usage.
[[nodiscard]] Page parsePage(const std::string& text);

// The command line asked for a text (help, version), or it is wrong.
struct Answer {
    int exitStatus = 0;
    std::string text; // for standard output where the exit status is 0, for standard error otherwise
};

// Help, version and the options of MachineArguments, which live as long as the parser.
void addCommonOptions(CLI::App& parser, MachineArguments& arguments);

// One sentence for whoever used the program wrongly, and where to read more.
[[nodiscard]] Answer wrongUsage(const CLI::App& parser, std::string_view sentence);

// Parses what the system handed to main(). Nothing if the words were understood and the program is to do its
// work.
[[nodiscard]] std::optional<Answer> parseArguments(CLI::App& parser, const MachineArguments& arguments,
                                                   int argc, const char* const* argv);

void addPathOption(CLI::App& parser, const char* name, const char* type,
                   std::optional<std::filesystem::path>& path, const char* help);

} // namespace quelby
