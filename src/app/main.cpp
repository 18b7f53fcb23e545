#include "app/command_line.h"
#include "app/desktop_program.h"
#include "app/headless.h"
#include "console/program.h"

namespace quelby::app {
namespace {

struct RunForm {
    const MachineArguments& arguments;
    char** argv;

    int operator()(const DesktopCommand& command) const {
        const auto program = loadDesktopProgram();
        return program ? (*program)(arguments, command, argv)
                       : reportOutcome("quelby", tl::make_unexpected(program.error()));
    }

    int operator()(const HeadlessCommand&) const {
        return runProgram("quelby", argv, [&] { return runHeadless(arguments); });
    }
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
