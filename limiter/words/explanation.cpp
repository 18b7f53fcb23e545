#include "limiter/words/explanation.h"

#include "limiter/charge_levels.h"
#include "limiter/words/missing_interface.h"

namespace quelby::limiter {

namespace {

std::string percentText(int percent) {
    return std::to_string(percent) + '%';
}

std::string standing(const Level& level) {
    if (!level.percent) {
        return level.limits ? "the firmware's own level stands" : "what stands cannot be told";
    }
    return percentText(*level.percent) + " stands";
}

std::string aboutLimit(const Situation& situation) {
    const auto& level = situation.inForce;
    if (!level.limits) {
        return situation.wishedPercent >= fullLevel ? "The battery is charged fully."
                                                    : "No limit is in force.";
    }
    if (!level.percent) {
        return "Charging stops at the firmware's own level, which it does not tell; 60% and 80% are usual.";
    }
    if (*level.percent != situation.wishedPercent) {
        return "Charging stops at " + percentText(*level.percent) + ", the nearest to " +
               percentText(situation.wishedPercent) + " that this machine offers.";
    }
    return "Charging stops at " + percentText(*level.percent) +
           (situation.holdsByItself ? "." : " for as long as this helper runs.");
}

} // namespace

std::string explanation(const Situation& situation, const MachineFacts& machine) {
    if (!situation.hasBattery) {
        return "This machine has no battery.";
    }
    if (!situation.hasMechanism) {
        return missingInterface(machine);
    }
    if (!situation.limitWanted) {
        return situation.error ? "The limit is off, but " + *situation.error + '.'
                               : "The limit is off; this machine can hold its battery below full.";
    }
    if (situation.winner) {
        return "The level was changed back again and again (" + *situation.winner + "), so " +
               standing(situation.inForce) + '.';
    }
    if (situation.calibrationPhase) {
        return "The limit is lifted for a calibration: " + *situation.calibrationPhase + '.';
    }
    if (situation.error) {
        return "The limit could not be set: " + *situation.error + '.';
    }
    return aboutLimit(situation);
}

} // namespace quelby::limiter
