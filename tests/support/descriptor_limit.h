#pragma once

#include <sys/resource.h>

namespace quelby {

// A lowered soft limit of descriptors, as long as this lives.
class DescriptorLimit {
public:
    explicit DescriptorLimit(rlim_t limit) {
        ::getrlimit(RLIMIT_NOFILE, &before_);
        const struct rlimit lowered = {limit, before_.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &lowered);
    }

    DescriptorLimit(const DescriptorLimit&) = delete;
    DescriptorLimit& operator=(const DescriptorLimit&) = delete;
    DescriptorLimit(DescriptorLimit&&) = delete;
    DescriptorLimit& operator=(DescriptorLimit&&) = delete;

    ~DescriptorLimit() { ::setrlimit(RLIMIT_NOFILE, &before_); }

private:
    struct rlimit before_ = {};
};

} // namespace quelby
