#include <fmt/format.h>

#include "cli/commands/commands.h"
#include "cli/commands/cycle_run.h"
#include "cli/output/metrics_text.h"
#include "console/standard_output.h"
#include "platform/posix/replace_file.h"

namespace quelby::cli {

namespace {

constexpr mode_t forEverybodyToRead = 0644;

} // namespace

Result<void> runMetrics(Machine& machine, const MetricsCommand& command) {
    const auto print = [&](const PowerMonitor& monitor) -> Result<void> {
        const auto text = metricsText(monitor);
        if (!command.file) {
            return writeToStandardOutput(text);
        }
        if (!replaceFile(*command.file, text, forEverybodyToRead)) {
            return problem(fmt::format("cannot write \"{}\"", command.file->native()));
        }
        return {};
    };
    return runCycles(machine, machine.platform(), untilTheEnd(machine, print));
}

} // namespace quelby::cli
