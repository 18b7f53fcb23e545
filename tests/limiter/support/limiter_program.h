// The built helper on a tree of plain files.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "helper/daemon_config.h"
#include "helper/daemon_status.h"
#include "support/program.h"
#include "support/temporary_folder.h"

namespace quelby::limiter {

class LimiterProgram {
public:
    LimiterProgram();

    // Its words, for these folders and with further options.
    [[nodiscard]] std::vector<std::string> words(const std::vector<std::string>& options = {}) const;

    [[nodiscard]] ProgramResult run(const std::vector<std::string>& options) const {
        return runProgram(words(options));
    }

    // The program that is used from now on is the same one in a time that runs faster ...
    void hurryUp();

    // ... by so much, in this environment.
    [[nodiscard]] static Environment hurried(int factor);

    void wish(const DaemonConfig& config) const;
    [[nodiscard]] std::optional<DaemonConfig> config() const;
    [[nodiscard]] std::optional<DaemonStatus> status() const;

    [[nodiscard]] std::string details() const { return outer.read("shared/details.json"); }

    // Relative to the power supplies, without the newline.
    [[nodiscard]] std::string attribute(const std::string& path) const;
    void setAttribute(const std::string& path, const std::string& value) const;

    // Returns once it holds, which is looked at whenever a file has changed; fails the test after some
    // seconds.
    void waitUntil(const std::function<bool()>& holds) const;

    // Returns once a helper that was just started has written its status.
    void waitUntilItRuns() const;
    void waitForLevel(const std::string& level) const;

    TemporaryFolder outer;
    std::filesystem::path shared = outer.path() / "shared";
    std::filesystem::path state = outer.path() / "state";
    std::filesystem::path sysfs = outer.path() / "sys";
    std::string program;
};

inline const std::string bat0End = "BAT0/charge_control_end_threshold";

} // namespace quelby::limiter
