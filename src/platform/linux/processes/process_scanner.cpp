#include "platform/linux/processes/process_scanner.h"

#include <array>

#include "platform/linux/processes/process_names.h"
#include "platform/linux/processes/system_time.h"

namespace quelby {

ProcessScanner::ProcessScanner(std::filesystem::path procRoot, CpuScale scale,
                               std::function<ScanTime()> scanTime,
                               std::vector<std::filesystem::path> entryFolders)
    : directory_(std::move(procRoot))
    , stats_(directory_)
    , applications_(std::move(entryFolders))
    , scale_(scale)
    , scanTime_(std::move(scanTime)) {}

bool ProcessScanner::scan() {
    if (!directory_.listPids(pids_)) {
        table_.clear();
        return false;
    }
    table_.follow(pids_);
    stats_.beginLook();
    const auto time = timeOfLook();
    const bool clocksTell = directory_.isOwnKernels();
    table_.keepWhere([&](Process& process) {
        const bool alive = refresh(process, clocksTell);
        process.share.update(process.counters, time, scale_);
        return alive;
    });
    return true;
}

void ProcessScanner::findApplications() {
    for (auto& process : table_.processes()) {
        if (process.share.percent() > 0) {
            applications_.look(process, directory_);
        }
    }
}

ScanTime ProcessScanner::timeOfLook() {
    auto time = scanTime_();
    std::array<char, 64> buffer;
    if (const auto text = readBeginning(directory_.open("uptime"), buffer)) {
        time.uptimeSeconds = parseUptime(*text).value_or(time.uptimeSeconds);
    }
    return time;
}

bool ProcessScanner::refresh(Process& process, bool clocksTell) {
    if (clocksTell && !process.clock) {
        process.clock = CpuClock::of(process.pid);
    }
    // Asked before the files: what the process does between the two answers moves its clock for the next
    // scan.
    const auto clock = process.clock ? process.clock->nanoseconds() : std::nullopt;
    const bool hasSlept = clock && clock == process.clockNanoseconds;
    const bool alive = hasSlept || readAgain(process);
    process.clockNanoseconds = clock; // not before: what could not be read must be read the next time
    return alive;
}

bool ProcessScanner::readAgain(Process& process) {
    const auto text = stats_.read(process.pid, process.statFile);
    const auto stat = text ? parseStat(*text) : std::nullopt;
    if (!stat) {
        return false;
    }
    const bool sameName =
        stat->escapedComm == process.escapedComm && stat->counters.startTicks == process.counters.startTicks;
    if (!sameName || process.name.empty()) {
        std::string comm(stat->escapedComm);
        process.name = processName(process.pid, comm, directory_);
        process.escapedComm = std::move(comm); // once there is a name for it
        process.looksForApplication = 0;       // it has become another program
    }
    process.counters = stat->counters;
    return true;
}

} // namespace quelby
