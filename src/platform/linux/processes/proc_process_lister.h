#pragma once

#include <filesystem>
#include <functional>

#include "platform/linux/processes/process_scanner.h"
#include "platform/linux/processes/system_time.h"
#include "platform/process_lister.h"

namespace quelby {

// Processes by the files of /proc, as proc(5) defines them; no program is run. cpuListing() scans
// all processes, and topListing() lists the same scan (and makes one only where there is none). A share is
// what was used since the previous scan, or the lifetime's average for a process seen for the first time.
// Only what the user may see is listed (hidepid in proc(5)).
//
// Both are nothing while the directory cannot be read, and recover when it can be again.
class ProcProcessLister final : public ProcessLister {
public:
    // Nothing is opened before the first listing. The files of processes are kept open and read again, so a
    // directory that stands in for /proc writes in place. The time of a scan can be handed in; the
    // directory's "uptime" goes before it, where there is one. The folders are those with desktop entries,
    // which tell what people call an application.
    explicit ProcProcessLister(std::filesystem::path procRoot,
                               std::function<ScanTime()> scanTime = systemScanTime,
                               std::vector<std::filesystem::path> entryFolders = {});

    [[nodiscard]] std::optional<std::string> cpuListing() override;
    [[nodiscard]] std::optional<std::string> topListing() override;
    [[nodiscard]] std::optional<std::string> applicationListing() override;
    [[nodiscard]] std::int64_t logicalProcessors() override;

private:
    CpuScale scale_;
    ProcessScanner scanner_;
    bool hasScan_ = false;
};

} // namespace quelby
