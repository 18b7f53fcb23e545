#include "limiter/program/kernel_wakeups.h"
#include "limiter/program/program.h"

int main(int argc, char** argv) {
    using namespace quelby::limiter;
    SystemClock clock;
    return runProgram({argv + 1, argv + argc}, {clock, [] { return std::make_unique<KernelWakeups>(); }});
}
