#include "ui/presentation/energy/battery_ageing.h"

#include <algorithm>

#include <fmt/format.h>

namespace quelby {

namespace {

constexpr double secondsInADay = 86400;
constexpr double daysInAMonth = 30.4375;
constexpr double leastSaid = 0.05; // % a month, which rounds to 0.1

struct Point {
    double day = 0; // since the first
    double health = 0;
};

std::vector<Point> points(const std::vector<BatteryDay>& days) {
    std::vector<Point> points;
    for (const auto& one : days) {
        if (const auto health = healthPercent(one)) {
            points.push_back({static_cast<double>(one.day - days.front().day) / secondsInADay, *health});
        }
    }
    return points;
}

} // namespace

std::optional<double> healthPercent(const BatteryDay& day) {
    if (!day.designCapacity || *day.designCapacity <= 0) {
        return std::nullopt;
    }
    return static_cast<double>(day.fullCapacity) * 100 / static_cast<double>(*day.designCapacity);
}

std::optional<AgeingLine> ageingLine(const std::vector<BatteryDay>& days) {
    const auto known = points(days);
    if (known.size() < fewestDaysForALine) {
        return std::nullopt;
    }
    const auto count = static_cast<double>(known.size());
    double meanDay = 0;
    double meanHealth = 0;
    for (const auto& point : known) {
        meanDay += point.day / count;
        meanHealth += point.health / count;
    }
    double together = 0;
    double spread = 0;
    for (const auto& point : known) {
        together += (point.day - meanDay) * (point.health - meanHealth);
        spread += (point.day - meanDay) * (point.day - meanDay);
    }
    const double slope = spread > 0 ? together / spread : 0;
    return AgeingLine{.first = meanHealth + slope * (known.front().day - meanDay),
                      .last = meanHealth + slope * (known.back().day - meanDay),
                      .percentPerMonth = slope * daysInAMonth};
}

std::string ageingText(const std::vector<BatteryDay>& days) {
    const auto line = ageingLine(days);
    if (!line) {
        const auto missing = fewestDaysForALine - std::min(points(days).size(), fewestDaysForALine);
        return fmt::format("{} more {} until this can be told", missing, missing == 1 ? "day" : "days");
    }
    const double loss = -line->percentPerMonth;
    return loss < leastSaid ? "no ageing to be seen" : fmt::format("about {:.1f} % a month", loss);
}

} // namespace quelby
