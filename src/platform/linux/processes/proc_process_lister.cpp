#include "platform/linux/processes/proc_process_lister.h"

#include <algorithm>

#include <unistd.h>

#include "platform/linux/processes/process_listings.h"

namespace quelby {

namespace {

CpuScale thisComputersScale() {
    return {static_cast<double>(::sysconf(_SC_CLK_TCK)), std::max(::sysconf(_SC_NPROCESSORS_CONF), 1L)};
}

} // namespace

ProcProcessLister::ProcProcessLister(std::filesystem::path procRoot, std::function<ScanTime()> scanTime,
                                     std::vector<std::filesystem::path> entryFolders)
    : scale_(thisComputersScale())
    , scanner_(std::move(procRoot), scale_, std::move(scanTime), std::move(entryFolders)) {}

std::optional<std::string> ProcProcessLister::cpuListing() {
    hasScan_ = false; // of which half is no scan
    hasScan_ = scanner_.scan();
    return hasScan_ ? std::optional(cpuListingText(scanner_.processes())) : std::nullopt;
}

std::optional<std::string> ProcProcessLister::topListing() {
    hasScan_ = hasScan_ || scanner_.scan();
    return hasScan_ ? std::optional(topListingText(scanner_.processes())) : std::nullopt;
}

std::optional<std::string> ProcProcessLister::applicationListing() {
    if (!hasScan_) {
        return std::nullopt;
    }
    scanner_.findApplications();
    return applicationListingText(scanner_.processes());
}

std::int64_t ProcProcessLister::logicalProcessors() {
    return scale_.logicalProcessors;
}

} // namespace quelby
