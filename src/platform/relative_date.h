#pragma once

#include <string>

namespace quelby {

// The date as it is spoken of now, in the user's language: "3 days ago", "in 2 weeks". Both in seconds since
// 1970-01-01 00:00 UTC. Never more than one line; empty where the system has no words for it.
// The build picks the system's own definition.
[[nodiscard]] std::string relativeDate(double date, double now);

} // namespace quelby
