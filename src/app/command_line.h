// What a person asked quelby for.
#pragma once

#include <filesystem>
#include <variant>

#include "console/machine_arguments.h"

namespace quelby::app {

struct TrayCommand {
    bool background = false; // started with the session: nothing opens by itself
    bool show = false;       // the dashboard opens at once
};

struct HeadlessCommand {};

struct ScreenshotCommand {
    std::filesystem::path file;
    Page page = Page::dashboard;
    bool energy = false; // where it went, in place of the page
    double scale = 1;    // pixels in a point; 0.5 to 8
    bool dark = false;
    double scroll = 0; // points from the top
};

using DesktopCommand = std::variant<TrayCommand, ScreenshotCommand>;
using Command = std::variant<DesktopCommand, HeadlessCommand>;

struct Request {
    MachineArguments arguments;
    Command command;
};

[[nodiscard]] std::variant<Request, Answer> parseCommandLine(int argc, const char* const* argv);

} // namespace quelby::app
