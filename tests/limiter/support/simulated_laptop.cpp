#include "limiter/support/simulated_laptop.h"

#include <algorithm>

#include "base/number_text.h"

namespace quelby::limiter {

namespace {

constexpr double chargedInAnHour = 40; // %
constexpr double spentInAnHour = 15;   // %
const std::string battery = "class/power_supply/BAT0/";

} // namespace

double SimulatedLaptop::level(const char* name, double otherwise) const {
    return decimalNumber(attributes_.read(battery + name).value_or("")).value_or(otherwise);
}

void SimulatedLaptop::pass(double seconds) {
    const double end = level("charge_control_end_threshold", 100);
    const double start = level("charge_control_start_threshold", 0);
    if (!plugged_) {
        charging_ = false;
        percent_ = std::max(percent_ - spentInAnHour * seconds / 3600, 5.0);
    } else {
        charging_ = (charging_ || percent_ < start || start == 0) && percent_ < end;
        if (charging_) {
            percent_ = std::min(percent_ + chargedInAnHour * seconds / 3600, std::max(end, percent_));
            charging_ = percent_ < end;
        }
    }
    const char* const resting = percent_ >= 100 ? "Full" : "Not charging";
    const char* const status = !plugged_ ? "Discharging" : charging_ ? "Charging" : resting;
    static_cast<void>(attributes_.write(battery + "status", status));
    static_cast<void>(attributes_.write(battery + "capacity", std::to_string(static_cast<int>(percent_))));
    static_cast<void>(attributes_.write("class/power_supply/AC/online", plugged_ ? "1" : "0"));
}

} // namespace quelby::limiter
