#include "cli/commands/commands.h"

#include "cli/commands/cycle_run.h"
#include "platform/replay/machine_recorder.h"
#include "platform/replay/recording_writer.h"

namespace quelby::cli {

// A monitor runs on the recorder, so that exactly what a monitor asks for is recorded.
Result<void> runRecord(Machine& machine, const RecordCommand& command, Pace pace) {
    auto writer = RecordingWriter::open(command.file);
    if (!writer) {
        return tl::make_unexpected(writer.error());
    }
    MachineRecorder recorder(machine.platform());
    auto run = cycleRun(command.repetition, pace);
    run.afterCycle = [&](const PowerMonitor&) { return writer->append(recorder.takeCycle()); };
    return runCycles(machine, recorder.platform(), run);
}

} // namespace quelby::cli
