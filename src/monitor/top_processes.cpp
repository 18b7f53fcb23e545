#include "monitor/top_processes.h"

#include "base/number_text.h"
#include "base/utf8.h"
#include "monitor/listing_lines.h"

namespace quelby {

namespace {

constexpr std::size_t rowCount = 5;

double estimatedWatts(double cpu, double cpuUsage, double cpuPower) {
    return cpuUsage > 0.0 && cpu > 0.0 ? cpuPower * cpu / cpuUsage : 0.0;
}

} // namespace

std::optional<std::vector<ProcessInfo_Energy>> topProcesses(std::string_view topListing, double cpuUsage,
                                                            double cpuPower) {
    if (!isUtf8(topListing)) {
        return std::nullopt;
    }
    std::vector<ProcessInfo_Energy> rows;
    rows.reserve(rowCount);
    ListingLines lines(topListing);
    while (rows.size() < rowCount) {
        const auto line = lines.next();
        if (!line) {
            break;
        }
        const auto blank = line->find(' ');
        if (blank == std::string_view::npos) {
            continue;
        }
        if (const auto cpu = decimalNumber(line->substr(0, blank))) {
            rows.push_back(
                {std::string(line->substr(blank + 1)), *cpu, estimatedWatts(*cpu, cpuUsage, cpuPower)});
        }
    }
    return rows;
}

} // namespace quelby
