// The computer that a program looks at, this one or a recorded one, put together from the platform's parts.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include "base/problem.h"
#include "platform/platform.h"
#include "platform/replay/replayed_machine.h"
#include "platform/system.h"

namespace quelby {

struct MachineOptions {
    std::optional<std::filesystem::path> replay;       // a recording instead of this computer
    AfterLastLine afterLastLine = AfterLastLine::stay; // of the recording
    std::optional<std::filesystem::path> dataDir;      // instead of the user's application-support folder
    std::optional<std::filesystem::path> configDir;    // instead of the helper's folder
    std::optional<std::filesystem::path> preferences;  // instead of the user's preference store
    SystemRoots roots;
    ProgramKind program = ProgramKind::tool;
};

enum class MachineKind { thisComputer, recorded };

// Owns every part of the platform that it offers. Its run loop is the calling thread's, and needs Qt's
// application object.
class Machine {
public:
    virtual ~Machine() = default;

    [[nodiscard]] virtual Platform platform() = 0;

    [[nodiscard]] virtual MachineKind kind() const = 0;

    // The last line of a recording has had its cycle; this computer never ends.
    [[nodiscard]] virtual bool hasEnded() const = 0;

    // The problem names the recording and says what is wrong with it. With a recording, the preferences are
    // empty and the folders temporary, unless they are named.
    [[nodiscard]] static Result<std::unique_ptr<Machine>> make(const MachineOptions& options);
};

} // namespace quelby
