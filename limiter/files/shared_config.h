#pragma once

#include <optional>
#include <string>
#include <vector>

#include "helper/daemon_config.h"
#include "limiter/files/folder.h"

namespace quelby::limiter {

// config.json: the application writes it whenever a setting changes, and the helper corrects one value in it.
class SharedConfig {
public:
    static constexpr const char* name = "config.json";

    // Looks at the file. What cannot be understood, or is not there, changes nothing.
    void read(const Folder& folder);

    // The last content that could be understood.
    [[nodiscard]] const std::optional<DaemonConfig>& last() const { return config_; }

    // Puts the true time of the last calibration into the file that was read last; nothing is done where it
    // stands there already. After a failure the next calls leave it alone for some minutes.
    //
    // No setting that the application writes meanwhile is lost:
    //
    // 1. The corrected text and the file change places, in one step.
    // 2. If what came out is not what was read, somebody has written in between: their text, corrected, goes
    //    the same way.
    // 3. Should somebody write all the time, what came out last goes back as it is, for the next call.
    // 4. What came out is discarded only in the end: after a sudden end in between, recover() finds it.
    void correct(const Folder& folder, double lastCalibration);

    // Puts back a setting that a helper which ended suddenly had laid aside. The file is then its own
    // corrected text, with the true time; a setting has an application's time, and one that was written later
    // has its place already.
    static void recover(const Folder& folder, double lastCalibration);

private:
    void exchangeUntilTrue(const Folder& folder, double lastCalibration,
                           std::vector<Folder::Displaced>& laidAside);

    std::string text_; // of the last file that could be understood
    std::optional<DaemonConfig> config_;
    int callsToSkip_ = 0;
};

} // namespace quelby::limiter
