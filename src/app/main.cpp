#include "app/command_line.h"
#include "app/headless.h"
#include "app/screenshot.h"
#include "app/tray.h"
#include "console/program.h"

namespace quelby::app {
namespace {

struct RunForm {
    const MachineArguments& arguments;
    char** argv;

    int operator()(const TrayCommand& command) const { return runInTray(arguments, command, argv); }

    int operator()(const HeadlessCommand&) const {
        return runProgram("quelby", argv, [&] { return runHeadless(arguments); });
    }

    int operator()(const ScreenshotCommand& command) const { return runScreenshot(arguments, command, argv); }
};

} // namespace
} // namespace quelby::app

int main(int argc, char** argv) {
    using namespace quelby;
    const auto parsed = app::parseCommandLine(argc, argv);
    if (const auto* const answer = std::get_if<Answer>(&parsed)) {
        return printAnswer("quelby", *answer);
    }
    const auto& request = std::get<app::Request>(parsed);
    return std::visit(app::RunForm{request.arguments, argv}, request.command);
}
