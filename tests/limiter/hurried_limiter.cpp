// The helper in a time that runs faster, from a moment that the environment names: QUELBY_HURRY times as fast
// since QUELBY_HURRY_SINCE, both seconds of the system's clocks.

#include <cstdlib>

#include "base/number_text.h"
#include "limiter/program/kernel_wakeups.h"
#include "limiter/program/program.h"

namespace quelby::limiter {
namespace {

double named(const char* variable, double otherwise) {
    const char* const text = std::getenv(variable);
    return text == nullptr ? otherwise : decimalNumber(text).value_or(otherwise);
}

class HurriedClock final : public Clock {
public:
    double now() override { return since_ + (clock_.now() - since_) * factor; }

    double awake() override { return clock_.awake() * factor; }

    double factor = named("QUELBY_HURRY", 1);

private:
    SystemClock clock_;
    double since_ = named("QUELBY_HURRY_SINCE", 0);
};

class HurriedWakeups final : public Wakeups {
public:
    explicit HurriedWakeups(double factor) : factor_(factor) {}

    void watch(const Folder& folder) override { wakeups_.watch(folder); }

    Wake wait(double seconds, bool listens) override { return wakeups_.wait(seconds / factor_, listens); }

    bool forgetFolder() override { return wakeups_.forgetFolder(); }

private:
    KernelWakeups wakeups_;
    double factor_;
};

} // namespace
} // namespace quelby::limiter

int main(int argc, char** argv) {
    using namespace quelby::limiter;
    HurriedClock clock;
    const double factor = clock.factor;
    return runProgram({argv + 1, argv + argc},
                      {clock, [factor] { return std::make_unique<HurriedWakeups>(factor); }});
}
