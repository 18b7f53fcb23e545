// A small recording: a laptop on battery that loses one percent with each cycle, half a minute apart.
#pragma once

#include <string>

#include "platform/replay/recording_line.h"

namespace quelby {

inline RecordedCycle laptopCycle(int number) {
    return {.time = 1'700'000'000.0 + number * 30,
            .battery = PropertyTable{{"DesignCapacity", 5000},
                                     {"AppleRawMaxCapacity", 5000},
                                     {"AppleRawCurrentCapacity", 4000 - number * 50},
                                     {"ExternalConnected", false},
                                     {"InstantAmperage", -1000},
                                     {"Voltage", 12000}},
            .processors = 2,
            .cpuListing = "%CPU\n 30.0\n 10.0\n",
            .topListing = "%CPU COMM\n 30.0 editor\n 10.0 Web Content\n"};
}

inline std::string laptopRecording(int cycles) {
    std::string text;
    for (int number = 0; number < cycles; ++number) {
        text += recordingLine(laptopCycle(number)) + '\n';
    }
    return text;
}

} // namespace quelby
