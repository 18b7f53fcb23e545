#pragma once

#include <functional>
#include <memory>

namespace quelby::app {

// Libraries may end the program from within by exit(), with everything still standing. While this object is
// there, the program then does what is left to do and ends as if it had been asked to, with 0.
class ExitGuard {
public:
    explicit ExitGuard(std::function<void()> lastThings);
    ExitGuard(const ExitGuard&) = delete;
    ExitGuard& operator=(const ExitGuard&) = delete;
    ~ExitGuard();

private:
    using LastThings = std::function<void()>;

    // The process's exit handlers cannot be taken back, so it belongs to them; empty once nothing is left to
    // do.
    LastThings* lastThings_;
};

} // namespace quelby::app
