#include "platform/linux/processes/stat_reader.h"

#include <algorithm>

#include <sys/resource.h>

namespace quelby {

namespace {

// For windows, the bus, the database and whatever else the program opens.
constexpr rlim_t reservedDescriptors = 128;

// The kernel pays some 5 kB for each.
constexpr rlim_t mostDescriptors = 4096;

} // namespace

void StatReader::beginLook() {
    struct rlimit limit = {};
    const bool known = ::getrlimit(RLIMIT_NOFILE, &limit) == 0;
    const rlim_t available = known ? std::min(limit.rlim_cur, mostDescriptors) : 0;
    firstReservedDescriptor_ =
        available > reservedDescriptors ? static_cast<int>(available - reservedDescriptors) : 0;
}

std::optional<std::string_view> StatReader::read(pid_t pid, FileDescriptor& kept) {
    if (kept.isOpen()) {
        if (const auto text = readBeginning(kept, text_)) {
            return text;
        }
        // The process has ended; another one may have got its pid meanwhile.
        kept.close();
    }
    FileDescriptor file = directory_.openOf(pid, "stat");
    if (!file.isOpen()) {
        return std::nullopt;
    }
    const auto text = readBeginning(file, text_);
    if (text && mayKeep(file)) {
        kept = std::move(file);
    }
    return text;
}

// The system gives out the lowest free number, so a file's number tells how many are taken.
bool StatReader::mayKeep(const FileDescriptor& file) const {
    return file.number() < firstReservedDescriptor_ && !directory_.isShortOfDescriptors();
}

} // namespace quelby
