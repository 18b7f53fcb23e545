#pragma once

namespace quelby::limiter {

// Tells a service manager that waits for it, in the way of sd_notify(3), that the helper is at work; where
// nobody waits, nothing happens.
void tellReadiness();

} // namespace quelby::limiter
