#include <QCoreApplication>

#include "cli/command_line.h"
#include "cli/cycles.h"
#include "cli/record_command.h"
#include "cli/standard_output.h"
#include "cli/status_command.h"
#include "cli/utf8_locale.h"
#include "cli/watch_command.h"

namespace quelby::cli {
namespace {

struct RunCommand {
    Machine& machine;
    Pace pace;

    Result<void> operator()(const StatusCommand& command) const { return runStatus(machine, command); }

    Result<void> operator()(const WatchCommand& command) const { return runWatch(machine, command, pace); }

    Result<void> operator()(const RecordCommand& command) const { return runRecord(machine, command, pace); }
};

Result<void> carryOut(const Request& request) {
    auto machine = Machine::make(request.machine);
    if (!machine) {
        return tl::make_unexpected(machine.error());
    }
    return std::visit(RunCommand{**machine, request.pace}, request.command);
}

int fail(const Problem& problem) {
    writeToStandardError("quelbyctl: " + problem.sentence + '\n');
    return couldNotBeDone;
}

int answerWith(const Answer& answer) {
    if (answer.exitStatus != 0) {
        writeToStandardError(answer.text);
        return answer.exitStatus;
    }
    const auto written = writeToStandardOutput(answer.text);
    return written ? 0 : fail(written.error());
}

int run(int argc, char** argv) {
    const auto parsed = parseCommandLine(argc, argv);
    if (const auto* const answer = std::get_if<Answer>(&parsed)) {
        return answerWith(*answer);
    }
    useUtf8Locale();
    int programNameOnly = 1; // Qt has no say in the other arguments
    const QCoreApplication application(programNameOnly, argv);
    const auto done = carryOut(std::get<Request>(parsed));
    return done ? 0 : fail(done.error());
}

} // namespace
} // namespace quelby::cli

int main(int argc, char** argv) {
    return quelby::cli::run(argc, argv);
}
