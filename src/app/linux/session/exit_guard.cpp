#include "app/linux/session/exit_guard.h"

#include <cstdlib>
#include <utility>

#include <unistd.h>

namespace quelby::app {

namespace {

void atExit(int /*status*/, void* argument) {
    const std::unique_ptr<std::function<void()>> lastThings(static_cast<std::function<void()>*>(argument));
    if (const auto todo = std::exchange(*lastThings, nullptr)) {
        todo();
        ::_exit(0); // what stands on the stack is never destroyed, and nobody may wait for it
    }
}

} // namespace

ExitGuard::ExitGuard(std::function<void()> lastThings)
    : lastThings_(std::make_unique<LastThings>(std::move(lastThings)).release()) {
    ::on_exit(atExit, lastThings_);
}

ExitGuard::~ExitGuard() {
    *lastThings_ = nullptr;
}

} // namespace quelby::app
