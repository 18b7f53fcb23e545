#include "fuzz/targets/target.h"
#include "platform/replay/recording_line.h"

namespace quelby::fuzz {

void takeRecordingLine(std::string_view bytes) {
    const auto cycle = parseRecordingLine(bytes);
    if (!cycle) {
        require(!cycle.error().sentence.empty(), "whoever wrote the line is told what is wrong");
        return;
    }
    const auto line = recordingLine(*cycle);
    require(line.find('\n') == std::string::npos, "a cycle is one line");
    const auto again = parseRecordingLine(line);
    require(again && *again == *cycle, "a cycle is read as it was written");
}

} // namespace quelby::fuzz
