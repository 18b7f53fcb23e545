// Stands in for the program's libraries of another version.
#include <cstdlib>

#define OFFERED extern "C" __attribute__((visibility("default")))

OFFERED const char* quelbyDesktopVersion() {
    return "0.9.0";
}

OFFERED int quelbyRunOnDesktop(const void*, const void*, char**) {
    std::abort(); // nobody knows what its classes are, here and below
}

OFFERED const char* quelbyDashboardVersion() {
    return "0.9.0";
}

OFFERED void* quelbyMakeDashboard() {
    std::abort();
}
