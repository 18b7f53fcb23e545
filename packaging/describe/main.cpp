// describe bash|zsh|fish PROGRAM prints the completion of quelby or quelbyctl; describe man PROGRAM TEMPLATE its man
// page; describe unit EXECUTABLE the service of the charge-limit helper, for a helper that lies there; describe
// run-as-root RESOURCES the program that installs and removes that helper, where it lies in this folder.
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "app/command_line_description.h"
#include "cli/arguments/command_line_description.h"
#include "packaging/describe/texts.h"
#include "platform/installer/linux_helper_scripts.h"
#include "platform/installer/root_program.h"
#include "platform/installer/systemd_unit.h"

namespace quelby::packaging {
namespace {

CommandWords wordsOf(const std::string& program) {
    CommandWords words;
    const auto take = [&](const CLI::App& app) { words = commandWords(app); };
    program == "quelby" ? app::describeCommandLine(take) : cli::describeCommandLine(take);
    return words;
}

std::string contentOf(const std::string& file) {
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string textFor(const std::vector<std::string>& words) {
    const auto& kind = words[0];
    if (kind == "unit") {
        return systemdUnit(words[1]);
    }
    if (kind == "run-as-root") {
        return rootProgram({linuxInstallScript(words[1]), linuxUninstallScript()});
    }
    const auto program = wordsOf(words[1]);
    if (kind == "bash") {
        return bashCompletion(program);
    }
    if (kind == "zsh") {
        return zshCompletion(program);
    }
    return kind == "fish" ? fishCompletion(program) : manPage(program, contentOf(words.at(2)));
}

} // namespace
} // namespace quelby::packaging

int main(int argc, char** argv) {
    const std::vector<std::string> words(argv + 1, argv + argc);
    if (words.size() < 2 || (words[0] == "man" && words.size() < 3)) {
        std::fputs("usage: describe bash|zsh|fish PROGRAM | man PROGRAM TEMPLATE | unit EXECUTABLE | "
                   "run-as-root RESOURCES\n",
                   stderr);
        return 2;
    }
    const auto text = quelby::packaging::textFor(words);
    return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0 ? 0
                                                                                                       : 1;
}
