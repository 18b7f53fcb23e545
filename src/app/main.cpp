#include "app/command_line.h"
#include "app/headless.h"
#include "console/program.h"

int main(int argc, char** argv) {
    using namespace quelby;
    const auto parsed = app::parseCommandLine(argc, argv);
    if (const auto* const answer = std::get_if<Answer>(&parsed)) {
        return printAnswer("quelby", *answer);
    }
    return runProgram("quelby", argv, [&] { return app::runHeadless(std::get<MachineArguments>(parsed)); });
}
