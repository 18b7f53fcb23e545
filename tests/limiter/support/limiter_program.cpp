#include "limiter/support/limiter_program.h"

#include <array>
#include <ctime>

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

#include "platform/posix/file_descriptor.h"

namespace quelby::limiter {

namespace {

namespace fs = std::filesystem;

const std::string supplyFolder = "sys/class/power_supply/";
constexpr int patience = 30'000; // milliseconds; far more than anything here takes, also under a sanitizer

} // namespace

LimiterProgram::LimiterProgram()
    : program(fs::path(QUELBY_BINARY_DIR).parent_path() / "libexec" / "quelby" / "pwr_limiter") {
    fs::permissions(outer.path(), fs::perms(0755));
    fs::create_directory(shared);
    fs::permissions(shared, fs::perms(0777));
    setAttribute("BAT0/type", "Battery");
    setAttribute("BAT0/status", "Not charging");
    setAttribute("BAT0/capacity", "80");
    setAttribute(bat0End, "100");
    setAttribute("AC/type", "Mains");
    setAttribute("AC/online", "1");
}

std::vector<std::string> LimiterProgram::words(const std::vector<std::string>& options) const {
    std::vector<std::string> all{program, "--folder", shared, "--state", state, "--sysfs-root", sysfs};
    all.insert(all.end(), options.begin(), options.end());
    return all;
}

void LimiterProgram::hurryUp() {
    program = fs::path(QUELBY_BINARY_DIR) / "hurried_limiter";
}

Environment LimiterProgram::hurried(int factor) {
    static const auto since = std::to_string(::time(nullptr));
    return {{"QUELBY_HURRY", std::to_string(factor)}, {"QUELBY_HURRY_SINCE", since}};
}

void LimiterProgram::wish(const DaemonConfig& config) const {
    const auto made = outer.write("new.json", encode(config).value());
    fs::permissions(made, fs::perms(0666));
    fs::rename(made, shared / "config.json");
}

std::optional<DaemonConfig> LimiterProgram::config() const {
    return decodeDaemonConfig(outer.read("shared/config.json"));
}

std::optional<DaemonStatus> LimiterProgram::status() const {
    return decodeDaemonStatus(outer.read("shared/status.json"));
}

std::string LimiterProgram::attribute(const std::string& path) const {
    const auto text = outer.read(supplyFolder + path);
    return text.substr(0, text.find('\n'));
}

void LimiterProgram::setAttribute(const std::string& path, const std::string& value) const {
    outer.write(supplyFolder + path, value + '\n');
}

void LimiterProgram::waitUntil(const std::function<bool()>& holds) const {
    const FileDescriptor changes(::inotify_init1(IN_CLOEXEC));
    for (const auto& folder : {shared, sysfs / "class/power_supply/BAT0"}) {
        ::inotify_add_watch(changes.number(), folder.c_str(), IN_CLOSE_WRITE | IN_MOVED_TO);
    }
    while (!holds()) {
        pollfd waiting{changes.number(), POLLIN, 0};
        if (::poll(&waiting, 1, patience) <= 0) {
            ADD_FAILURE() << "nothing changes any more";
            return;
        }
        std::array<char, 4096> events{};
        static_cast<void>(::read(changes.number(), events.data(), events.size()));
    }
}

void LimiterProgram::waitUntilItRuns() const {
    waitUntil([&] { return status() && status()->daemonRunning; });
}

void LimiterProgram::waitForLevel(const std::string& level) const {
    waitUntil([&] { return attribute(bat0End) == level; });
}

} // namespace quelby::limiter
