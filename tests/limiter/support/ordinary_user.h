// What a test does as somebody without any rights.
#pragma once

#include <functional>

namespace quelby::limiter {

// Runs the work in another process: as the user "nobody" where the tests run as root, and as the tests' own
// user otherwise. True where it gives true.
[[nodiscard]] bool asOrdinaryUser(const std::function<bool()>& work);

} // namespace quelby::limiter
