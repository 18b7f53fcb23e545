#include "platform/macos/ps_process_lister.h"

#include <utility>

#include "platform/macos/plain_numbers.h"
#include "platform/posix/child_process.h"

namespace quelby {

PsProcessLister::PsProcessLister(std::int64_t logicalProcessors, std::filesystem::path ps)
    : logicalProcessors_(logicalProcessors), ps_(std::move(ps)) {}

std::optional<std::string> PsProcessLister::cpuListing() {
    return outputOf({ps_, "-A", "-o", "%cpu"}, withPlainNumbers(environmentVariables()));
}

std::optional<std::string> PsProcessLister::topListing() {
    return outputOf({ps_, "-Arco", "%cpu,comm"}, withPlainNumbers(environmentVariables()));
}

std::int64_t PsProcessLister::logicalProcessors() {
    return logicalProcessors_;
}

} // namespace quelby
