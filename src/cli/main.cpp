#include "cli/arguments/command_line.h"
#include "cli/commands/commands.h"
#include "console/program.h"

namespace quelby::cli {
namespace {

struct RunCommand {
    Machine& machine;
    Pace pace;

    Result<void> operator()(const StatusCommand& command) const { return runStatus(machine, command); }

    Result<void> operator()(const WatchCommand& command) const { return runWatch(machine, command, pace); }

    Result<void> operator()(const DashboardCommand& command) const { return runDashboard(machine, command); }

    Result<void> operator()(const RecordCommand& command) const { return runRecord(machine, command, pace); }

    Result<void> operator()(const HistoryCommand& command) const { return runHistory(machine, command); }

    Result<void> operator()(const EnergyCommand& command) const { return runEnergy(machine, command); }

    Result<void> operator()(const SleepsCommand& command) const { return runSleeps(machine, command); }

    Result<void> operator()(const SessionsCommand& command) const { return runSessions(machine, command); }

    Result<void> operator()(const HealthCommand& command) const { return runHealth(machine, command); }

    Result<void> operator()(const TitleCommand& command) const { return runTitle(machine, command, pace); }

    Result<void> operator()(const MetricsCommand& command) const { return runMetrics(machine, command); }

    Result<void> operator()(const LimitCommand& command) const { return runLimit(machine, command); }

    Result<void> operator()(const CalibrationCommand& command) const {
        return runCalibration(machine, command);
    }

    Result<void> operator()(const HelperCommand& command) const { return runHelper(machine, command); }
};

Result<void> carryOut(const Request& request) {
    auto machine = Machine::make(request.arguments.machine);
    if (!machine) {
        return tl::make_unexpected(machine.error());
    }
    return std::visit(RunCommand{**machine, request.arguments.pace}, request.command);
}

} // namespace
} // namespace quelby::cli

int main(int argc, char** argv) {
    using namespace quelby;
    const auto parsed = cli::parseCommandLine(argc, argv);
    if (const auto* const answer = std::get_if<Answer>(&parsed)) {
        return printAnswer("quelbyctl", *answer);
    }
    return runProgram("quelbyctl", argv, [&] { return cli::carryOut(std::get<cli::Request>(parsed)); });
}
