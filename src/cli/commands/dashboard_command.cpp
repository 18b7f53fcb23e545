#include "cli/commands/commands.h"

#include "cli/commands/cycle_run.h"
#include "cli/output/dashboard_json.h"
#include "cli/terminal/device/terminal_screen.h"
#include "cli/terminal/layout/dashboard_text.h"
#include "console/standard_output.h"
#include "platform/relative_date.h"

namespace quelby::cli {

namespace {

std::string lines(const Block& block) {
    std::string text;
    for (const auto& line : block) {
        text += withSequences(withoutEnd(line), outputColors());
        text += '\n';
    }
    return text;
}

std::string dashboardOutput(const PublishedFields& fields, Date now, OutputForm form) {
    const auto content = dashboard(fields, now, systemWords());
    return form == OutputForm::json ? dashboardAsJson(content)
                                    : lines(dashboardText(content, outputColumns()));
}

std::string settingsOutput(const PublishedFields& fields, Date now, OutputForm form) {
    const auto content = settingsPanel(fields, now, relativeDate);
    return form == OutputForm::json ? settingsAsJson(content) : lines(settingsText(content, outputColumns()));
}

} // namespace

Result<void> runDashboard(Machine& machine, const DashboardCommand& command) {
    const auto platform = machine.platform();
    const auto print = [&](const PowerMonitor& monitor) {
        const auto output = command.page == Page::settings ? settingsOutput : dashboardOutput;
        return writeToStandardOutput(output(monitor, platform.clock->now(), command.form));
    };
    return runCycles(machine, platform, untilTheEnd(machine, print));
}

} // namespace quelby::cli
