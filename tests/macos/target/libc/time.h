#pragma once

#include_next <time.h>

#define CLOCK_UPTIME_RAW 8
