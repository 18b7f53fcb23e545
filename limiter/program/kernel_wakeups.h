#pragma once

#include "limiter/program/wakeups.h"
#include "platform/posix/file_descriptor.h"

namespace quelby::limiter {

// Signals, the kernel's messages about power supplies, and changes in a folder. Where the kernel refuses one
// of the latter two, the helper notices later, in its regular rounds.
class KernelWakeups final : public Wakeups {
public:
    // From now on SIGTERM and SIGINT do not end the process, but are told here.
    KernelWakeups();

    void watch(const Folder& folder) override;
    [[nodiscard]] Wake wait(double seconds, bool listens) override;
    [[nodiscard]] bool forgetFolder() override;

private:
    [[nodiscard]] bool hearFolder() const; // whether config.json was among it
    [[nodiscard]] bool hearKernel() const; // whether a power supply was

    FileDescriptor signals_;
    FileDescriptor kernel_;
    FileDescriptor folder_;
};

} // namespace quelby::limiter
