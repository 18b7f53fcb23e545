#include "limiter/program/program.h"

int main(int argc, char** argv) {
    quelby::limiter::SystemClock clock;
    return quelby::limiter::runProgram({argv + 1, argv + argc}, clock);
}
