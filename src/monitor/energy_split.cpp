#include "monitor/energy_split.h"

#include <string>
#include <utility>
#include <vector>

#include "base/number_text.h"
#include "base/utf8.h"
#include "monitor/listing_lines.h"

namespace quelby {

namespace {

struct ShareOfTime {
    std::string_view name;
    double percent = 0;
};

void add(EnergyByName& energy, std::string_view name, double wattHours) {
    const auto known = energy.find(name);
    if (known != energy.end()) {
        known->second += wattHours;
    } else {
        energy.emplace(name, wattHours);
    }
}

void addApp(EnergyByName& energy, std::string_view name, double wattHours) {
    if (name == systemName || name == otherName) {
        add(energy, std::string(name) + " (program)", wattHours);
    } else {
        add(energy, name, wattHours);
    }
}

// Those that have used CPU time.
std::vector<ShareOfTime> sharesIn(std::string_view listing) {
    std::vector<ShareOfTime> shares;
    ListingLines lines(listing);
    while (const auto line = lines.next()) {
        const auto blank = line->find(' ');
        if (blank == std::string_view::npos) {
            continue;
        }
        if (const auto percent = decimalNumber(line->substr(0, blank)); percent && *percent > 0) {
            shares.push_back({line->substr(blank + 1), *percent});
        }
    }
    return shares;
}

} // namespace

void addByApp(EnergyByName& energy, std::optional<std::string_view> listing, const PublishedFields& fields,
              double hours) {
    const auto shares = listing && isUtf8(*listing) ? sharesIn(*listing) : std::vector<ShareOfTime>();
    double sum = 0;
    for (const auto& share : shares) {
        sum += share.percent;
    }
    for (const auto& share : shares) {
        addApp(energy, share.name, fields.cpuPower * share.percent / sum * hours);
    }
    add(energy, systemName,
        (shares.empty() ? fields.totalPower : fields.totalPower - fields.cpuPower) * hours);
}

void addByComponent(EnergyByName& energy, const PublishedFields& fields, double hours) {
    double rest = fields.totalPower;
    for (const auto& [name, watts] :
         {std::pair("cpu", fields.cpuPower.get()), std::pair("graphics", fields.gpuPower.get()),
          std::pair("memory", fields.memPower.get()), std::pair("storage", fields.diskPower.get()),
          std::pair("network", fields.netPower.get())}) {
        add(energy, name, watts * hours);
        rest -= watts;
    }
    add(energy, "rest", rest * hours);
}

} // namespace quelby
