// What a person asked quelbyctl for.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <variant>

#include "platform/host/machine.h"

namespace quelby::cli {

enum class OutputForm { text, json };

enum class Pace { asAsked, withoutWaiting };

struct StatusCommand {
    OutputForm form = OutputForm::text;
};

struct Repetition {
    std::optional<std::int64_t> count;         // cycles, 1 or more; none: until it is ended
    std::chrono::duration<double> interval{3}; // 0.01 s or more
};

struct WatchCommand {
    OutputForm form = OutputForm::text;
    Repetition repetition;
};

struct RecordCommand {
    std::filesystem::path file;
    Repetition repetition;
};

using Command = std::variant<StatusCommand, WatchCommand, RecordCommand>;

struct Request {
    MachineOptions machine;
    Pace pace = Pace::asAsked; // of a recording
    Command command;
};

// The command line asked for a text (help, version), or it is wrong.
struct Answer {
    int exitStatus = 0;
    std::string text; // for standard output where the exit status is 0, for standard error otherwise
};

[[nodiscard]] std::variant<Request, Answer> parseCommandLine(int argc, const char* const* argv);

} // namespace quelby::cli
