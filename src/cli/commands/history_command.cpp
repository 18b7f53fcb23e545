#include "cli/commands/commands.h"

#include <algorithm>

#include "cli/commands/cycle_run.h"
#include "cli/output/history_output.h"
#include "cli/terminal/device/terminal_screen.h"
#include "console/standard_output.h"
#include "history/history_store.h"

namespace quelby::cli {

namespace {

std::string inForm(OutputForm form, const HistoryView& view) {
    switch (form) {
    case OutputForm::json:
        return historyAsJson(view);
    case OutputForm::csv:
        return historyAsCsv(view);
    case OutputForm::text:
        return historyAsText(view, std::clamp(outputColumns(), 20, 120));
    }
    return {};
}

} // namespace

Result<void> runHistory(Machine& machine, const HistoryCommand& command) {
    const auto platform = machine.platform();
    playToTheEnd(machine, platform);
    HistoryStore store(platform.folders->applicationSupport(), *platform.clock, HistoryAccess::readOnly);
    if (auto opened = store.opened(); !opened) {
        return opened;
    }
    const HistoryView view{.range = command.range,
                           .now = platform.clock->now(),
                           .result = store.loadData(command.range),
                           .todayWh = store.todayWh()};
    return writeToStandardOutput(inForm(command.form, view));
}

} // namespace quelby::cli
