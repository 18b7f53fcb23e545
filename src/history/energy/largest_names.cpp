#include "history/energy/largest_names.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace quelby {

namespace {

using Total = std::pair<std::string_view, double>;

bool isApplication(std::string_view name) {
    return name != systemName && name != otherName;
}

std::vector<Total> totals(const EnergyByName& known, const EnergyByName& added) {
    std::vector<Total> totals;
    totals.reserve(known.size() + added.size());
    for (const auto& [name, wattHours] : known) {
        if (isApplication(name)) {
            const auto more = added.find(name);
            totals.emplace_back(name, wattHours + (more == added.end() ? 0 : more->second));
        }
    }
    for (const auto& [name, wattHours] : added) {
        if (isApplication(name) && !known.contains(name)) {
            totals.emplace_back(name, wattHours);
        }
    }
    return totals;
}

} // namespace

std::unordered_set<std::string_view> beyondLargest(std::size_t count, const EnergyByName& known,
                                                   const EnergyByName& added) {
    auto all = totals(known, added);
    std::unordered_set<std::string_view> beyond;
    if (all.size() <= count) {
        return beyond;
    }
    const auto firstBeyond = all.begin() + static_cast<std::ptrdiff_t>(count);
    std::nth_element(all.begin(), firstBeyond, all.end(), [](const Total& one, const Total& other) {
        return one.second != other.second ? one.second > other.second : one.first < other.first;
    });
    std::for_each(firstBeyond, all.end(), [&](const Total& total) { beyond.insert(total.first); });
    return beyond;
}

} // namespace quelby
