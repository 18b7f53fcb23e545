#include "limiter/decisions/hold_watch.h"

namespace quelby::limiter {

namespace {

// Where the firmware has a level of its own and does not tell it; the lowest known one.
constexpr int lowestFirmwareLevel = 55; // %

} // namespace

bool looksHeld(bool externalPower, const Battery& battery, const Level& inForce) {
    return externalPower && inForce.limits && battery.percent &&
           *battery.percent >= inForce.percent.value_or(lowestFirmwareLevel) && battery.isTakingNone();
}

void HoldWatch::look(bool looksHeld, double time) {
    if (!looksHeld) {
        since_.reset();
        held_ = false;
        return;
    }
    if (!since_) {
        since_ = time;
    }
    held_ = held_ || time - *since_ >= apart;
}

} // namespace quelby::limiter
