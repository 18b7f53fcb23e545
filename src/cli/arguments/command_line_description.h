#pragma once

#include <functional>

#include <CLI/CLI.hpp>

namespace quelby::cli {

// Shows what the help is made of to whoever writes about the command line: man pages, completions.
void describeCommandLine(const std::function<void(const CLI::App&)>& describe);

} // namespace quelby::cli
