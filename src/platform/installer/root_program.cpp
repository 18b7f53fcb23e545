#include "platform/installer/root_program.h"

#include <fmt/format.h>

#include "platform/installer/shell_quoting.h"

namespace quelby {

namespace {

// A pattern of "case" that stands for the script alone.
std::string branchFor(std::string_view script) {
    return fmt::format("    {})\n        exec /bin/sh -c \"$1\"\n        ;;\n", shellQuoted(script));
}

} // namespace

std::string rootProgram(const std::vector<std::string>& scripts) {
    std::string text = "#!/bin/sh\n"
                       "# Installs or removes Quelby's charge-limit helper, by the very scripts below.\n"
                       "case $1 in\n";
    for (const auto& script : scripts) {
        text += branchFor(script);
    }
    return text + "esac\necho \"run_as_root: this is none of the scripts that it runs\" >&2\nexit 2\n";
}

bool runsScript(std::string_view rootProgram, std::string_view script) {
    return rootProgram.find(branchFor(script)) != std::string_view::npos;
}

} // namespace quelby
