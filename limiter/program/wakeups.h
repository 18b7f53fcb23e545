// What the helper sleeps on.
#pragma once

#include "limiter/files/folder.h"

namespace quelby::limiter {

enum class Wake {
    time,   // nothing happened
    change, // the wish or a power supply may have changed
    noise,  // something happened that is of no interest
    stop,   // the helper is asked to end
};

class Wakeups {
public:
    Wakeups() = default;
    Wakeups(const Wakeups&) = delete;
    Wakeups& operator=(const Wakeups&) = delete;
    virtual ~Wakeups() = default;

    // From now on changes of config.json in this folder, and in no other, are told.
    virtual void watch(const Folder& folder) = 0;

    // Sleeps so many seconds at the most, and all of them unless it listens or is asked to stop. What happens
    // while it does not listen is told as soon as it does again.
    [[nodiscard]] virtual Wake wait(double seconds, bool listens) = 0;

    // Forgets what has been heard of the folder so far, which is mostly the helper's own doing. True where
    // config.json was among it.
    [[nodiscard]] virtual bool forgetFolder() = 0;
};

} // namespace quelby::limiter
