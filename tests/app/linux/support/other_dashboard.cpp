// Stands in for the library with the dashboard of another version.
#include <cstdlib>

extern "C" __attribute__((visibility("default"))) const char* quelbyDashboardVersion() {
    return "0.9.0";
}

extern "C" __attribute__((visibility("default"))) void* quelbyMakeDashboard() {
    std::abort(); // nobody knows what its classes are
}
