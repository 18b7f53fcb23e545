#pragma once

#include <gtest/gtest.h>

#include "history/history_file.h"
#include "support/laptop_recording.h"
#include "support/quelbyctl.h"
#include "support/running_program.h"
#include "support/temporary_folder.h"

namespace quelby {

// A folder that the built recorder records a recording to.
class RecorderTest : public testing::Test {
protected:
    static constexpr double firstTime = 1'700'000'000;

    // A laptop that draws 12 W.
    [[nodiscard]] std::string recording(double start, double step, int lines) const {
        std::string text;
        for (int line = 0; line < lines; ++line) {
            auto cycle = laptopCycle(0);
            cycle.time = start + step * line;
            text += recordingLine(cycle) + '\n';
        }
        return folder.write("it.jsonl", text);
    }

    [[nodiscard]] std::vector<std::string> recorder(const std::string& recording,
                                                    const std::vector<std::string>& more = {}) const {
        std::vector<std::string> words{QUELBY_BINARY_DIR "/quelby", "--headless"};
        words.insert(words.end(), {"--replay", recording, "--data-dir", folder.path()});
        words.insert(words.end(), more.begin(), more.end());
        return words;
    }

    // A recorder that is killed leaves its temporary files behind, here.
    [[nodiscard]] Environment environment() const { return {{"TMPDIR", folder.path()}}; }

    static void readLines(RunningProgram& recorder, std::ptrdiff_t count) {
        for (; count > 0; --count) {
            static_cast<void>(recorder.line());
        }
    }

    TemporaryFolder folder;
    std::filesystem::path file = historyFile(folder.path());
};

} // namespace quelby
