#pragma once

#include <cstdlib>
#include <ctime>

namespace quelby {

// The process's time zone by its POSIX rule, so that no zone files are needed.
class TimeZone {
public:
    explicit TimeZone(const char* rule) {
        ::setenv("TZ", rule, 1);
        ::tzset();
    }

    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;

    ~TimeZone() {
        ::unsetenv("TZ");
        ::tzset();
    }
};

} // namespace quelby
