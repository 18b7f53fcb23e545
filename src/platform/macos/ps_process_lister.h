#pragma once

#include <filesystem>

#include "platform/process_lister.h"

namespace quelby {

// Processes as the system's lister prints them; each listing is a run of it.
class PsProcessLister final : public ProcessLister {
public:
    explicit PsProcessLister(std::int64_t logicalProcessors, std::filesystem::path ps = "/bin/ps");

    [[nodiscard]] std::optional<std::string> cpuListing() override;
    [[nodiscard]] std::optional<std::string> topListing() override;
    [[nodiscard]] std::int64_t logicalProcessors() override;

private:
    std::int64_t logicalProcessors_;
    std::filesystem::path ps_;
};

} // namespace quelby
