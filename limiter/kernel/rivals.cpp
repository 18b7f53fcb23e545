#include "limiter/kernel/rivals.h"

#include <algorithm>
#include <array>
#include <vector>

namespace quelby::limiter {

namespace {

namespace fs = std::filesystem;

const std::string groups = "fs/cgroup/";

struct Rival {
    const char* name;
    const char* service;
    bool isOfTheSession = false; // runs for each user, not for the machine
};

constexpr std::array<Rival, 9> rivals{{
    {"TLP", "tlp.service"},
    {"UPower", "upower.service"},
    {"KDE's PowerDevil", "plasma-powerdevil.service", true},
    {"auto-cpufreq", "auto-cpufreq.service"},
    {"Laptop Mode Tools", "laptop-mode.service"},
    {"asusd", "asusd.service"},
    {"System76 Power", "com.system76.PowerDaemon.service"},
    {"TUXEDO Control Center", "tccd.service"},
    {"TLP's profiles daemon", "tlp-pd.service"},
}};

bool startsWith(const std::string& text, const std::string& beginning) {
    return text.rfind(beginning, 0) == 0;
}

bool runsForTheMachine(const Attributes& attributes, const fs::path& serviceManagerFolder,
                       const std::string& service) {
    std::error_code ignored;
    return attributes.exists(groups + "system.slice/" + service) ||
           (!serviceManagerFolder.empty() &&
            fs::is_symlink(serviceManagerFolder / ("invocation:" + service), ignored));
}

bool runsForAUser(const Attributes& attributes, const std::string& service) {
    const fs::path users = groups + "user.slice";
    for (const auto& user : attributes.names(users)) {
        for (const auto& manager : attributes.names(users / user)) {
            if (!startsWith(manager, "user@")) {
                continue;
            }
            const auto session = users / user / manager;
            for (const char* const slice : {"background.slice", "app.slice", "session.slice", ""}) {
                if (attributes.exists(session / slice / service)) {
                    return true;
                }
            }
        }
    }
    return false;
}

} // namespace

std::string runningRivals(const Attributes& attributes, const std::filesystem::path& serviceManagerFolder) {
    std::string names;
    for (const auto& rival : rivals) {
        const bool runs = rival.isOfTheSession
                              ? runsForAUser(attributes, rival.service)
                              : runsForTheMachine(attributes, serviceManagerFolder, rival.service);
        if (runs) {
            names += (names.empty() ? "" : " or ") + std::string(rival.name);
        }
    }
    return names.empty() ? "another program or the firmware" : names;
}

} // namespace quelby::limiter
