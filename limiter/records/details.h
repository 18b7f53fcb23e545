// The content of details.json: what holds on this machine, for people and for bug reports.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quelby::limiter {

struct BatteryDetails {
    std::string name;
    std::optional<std::string> mechanism; // absent: this battery cannot be limited

    // % of full charge; absent: not known, or not settable
    std::optional<int> wishedPercent;
    std::optional<int> inForcePercent;
    std::optional<int> inForceStartPercent;
    std::optional<int> foundPercent;
    std::optional<int> foundStartPercent;

    bool operator==(const BatteryDetails&) const = default;
};

struct Details {
    std::string version; // of the helper
    double lastUpdate = 0;
    std::optional<std::string> mechanism; // of the first battery that has one
    std::vector<BatteryDetails> batteries;
    std::optional<std::string> rival;     // who or what else was seen to change the level
    std::optional<std::string> lastError; // one sentence
    std::string explanation;              // one sentence

    bool operator==(const Details&) const = default;
};

[[nodiscard]] std::string encode(const Details& details);

} // namespace quelby::limiter
