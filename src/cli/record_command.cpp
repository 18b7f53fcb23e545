#include "cli/record_command.h"

#include "cli/cycles.h"
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
    return runCycles(machine, recorder.platform(), paced(command.repetition, pace),
                     [&](const PowerMonitor&) { return writer->append(recorder.takeCycle()); });
}

} // namespace quelby::cli
