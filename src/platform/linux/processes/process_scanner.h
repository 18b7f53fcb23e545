#pragma once

#include <filesystem>
#include <functional>
#include <span>
#include <vector>

#include "platform/linux/processes/application_names.h"
#include "platform/linux/processes/cpu_share.h"
#include "platform/linux/processes/proc_directory.h"
#include "platform/linux/processes/process_table.h"
#include "platform/linux/processes/stat_reader.h"

namespace quelby {

// Takes scans at all processes of a /proc.
class ProcessScanner {
public:
    ProcessScanner(std::filesystem::path procRoot, CpuScale scale, std::function<ScanTime()> scanTime,
                   std::vector<std::filesystem::path> entryFolders = {});

    ProcessScanner(const ProcessScanner&) = delete;
    ProcessScanner& operator=(const ProcessScanner&) = delete;
    ProcessScanner(ProcessScanner&&) = delete;
    ProcessScanner& operator=(ProcessScanner&&) = delete;
    ~ProcessScanner() = default;

    // False where the directory cannot be read; then all is forgotten, and the next scan is a first one.
    [[nodiscard]] bool scan();

    // What the last scan has seen, in ascending order of pid.
    [[nodiscard]] std::span<const Process> processes() const { return table_.processes(); }

    // Finds out which applications those processes belong to that have used CPU time.
    void findApplications();

private:
    [[nodiscard]] ScanTime timeOfLook();
    [[nodiscard]] bool refresh(Process& process, bool clocksTell);
    [[nodiscard]] bool readAgain(Process& process);

    ProcDirectory directory_;
    StatReader stats_;
    ApplicationNames applications_;
    CpuScale scale_;
    std::function<ScanTime()> scanTime_;
    std::vector<pid_t> pids_;
    ProcessTable table_;
};

} // namespace quelby
