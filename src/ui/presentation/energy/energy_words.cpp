#include "ui/presentation/energy/energy_words.h"

#include <cmath>

#include <fmt/format.h>

#include "base/arithmetic.h"
#include "ui/presentation/text/words.h"

namespace quelby {

namespace {

constexpr double hour = 3600;     // seconds
constexpr double muchPerHour = 1; // %

} // namespace

std::string wattHoursText(double wattHours) {
    const double amount = std::fabs(wattHours);
    const int decimals = amount < 0.995 ? 2 : amount < 99.95 ? 1 : 0;
    return fmt::format("{:.{}f} Wh", wattHours, decimals);
}

std::string chargeShareText(double wattHours, std::optional<double> fullCharge) {
    if (!fullCharge || *fullCharge <= 0) {
        return {};
    }
    const double percent = wattHours / *fullCharge * 100;
    return percent < 0.5 ? "<1 %" : fmt::format("{} %", truncated(std::round(percent)));
}

std::string durationText(double seconds) {
    const auto whole = truncated(seconds);
    const auto minutes = whole / 60;
    if (whole < 60) {
        return fmt::format("{} s", whole);
    }
    if (minutes < 60) {
        return fmt::format("{} min", minutes);
    }
    const auto hours = minutes / 60;
    return hours < 24 ? fmt::format("{} h {} min", hours, minutes % 60)
                      : fmt::format("{} d {} h", hours / 24, hours % 24);
}

std::string timeToLimitText(double minutes, double limitPercent) {
    const auto whole = truncated(minutes);
    return fmt::format("~{}h {}m to the limit of {}%", whole / 60, whole % 60, truncated(limitPercent));
}

double percentPerHour(const Sleep& sleep) {
    const auto seconds = static_cast<double>(sleep.seconds);
    return seconds > 0 ? (sleep.percentBefore - sleep.percentAfter) * hour / seconds : 0;
}

std::optional<double> meanWatts(const Sleep& sleep) {
    const auto seconds = static_cast<double>(sleep.seconds);
    return sleep.wattHours && seconds > 0 ? std::optional(*sleep.wattHours * hour / seconds) : std::nullopt;
}

bool drainedMuch(const Sleep& sleep) {
    return percentPerHour(sleep) > muchPerHour;
}

std::string_view sessionName(SessionKind kind) {
    switch (kind) {
    case SessionKind::discharge:
        return "On battery";
    case SessionKind::charge:
        return "Charging";
    case SessionKind::calibration:
        return "Calibration";
    }
    return {};
}

std::string energyButtonName(std::string_view today) {
    return fmt::format("{}, {}", today, words::showEnergy);
}

} // namespace quelby
