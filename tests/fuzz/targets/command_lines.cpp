#include <CLI/CLI.hpp>

#include "app/command_line.h"
#include "base/utf8.h"
#include "cli/arguments/command_line.h"
#include "cli/output/filled_template.h"
#include "fuzz/targets/target.h"
#include "limiter/program/options.h"

namespace quelby::fuzz {

namespace {

// No word that the system hands over has a zero byte.
std::vector<std::string> linesOf(std::string_view bytes) {
    std::vector<std::string> lines;
    while (!bytes.empty()) {
        const auto line = bytes.substr(0, bytes.find('\n'));
        lines.emplace_back(line.substr(0, line.find('\0')));
        bytes.remove_prefix(std::min(line.size() + 1, bytes.size()));
    }
    return lines;
}

template <typename Parsed>
void requireAnswer(const Parsed& parsed) {
    if (const auto* const answer = std::get_if<Answer>(&parsed)) {
        require(!answer->text.empty() && answer->text.back() == '\n', "an answer is whole lines");
        require(answer->exitStatus == 0 || answer->exitStatus == 2, "wrong usage has its own exit code");
    }
}

} // namespace

void takeCommandLine(std::string_view bytes) {
    const auto words = linesOf(bytes);
    std::vector<const char*> argv{"program"};
    for (const auto& word : words) {
        argv.push_back(word.c_str());
    }
    const auto argc = static_cast<int>(argv.size());
    argv.push_back(nullptr);
    requireAnswer(cli::parseCommandLine(argc, argv.data()));
    requireAnswer(app::parseCommandLine(argc, argv.data()));
    const auto options = limiter::parseOptions(words);
    require(options || !options.error().sentence.empty(), "whoever typed it is told what is wrong");
}

void takeTemplate(std::string_view bytes) {
    try {
        const auto pieces = cli::parseTitleTemplate(bytes);
        const PublishedFields fields;
        require(!cli::filledTemplate(pieces, fields).empty() || bytes.empty() ||
                    bytes.find('{') != std::string_view::npos,
                "words stay as they are");
    } catch (const CLI::ValidationError& error) {
        require(*error.what() != '\0', "whoever typed it is told what is wrong");
    }
}

} // namespace quelby::fuzz
