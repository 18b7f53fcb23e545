#pragma once

#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "base/number_text.h"

namespace quelby {

inline std::vector<std::string> linesOf(const std::string& listing) {
    std::vector<std::string> lines;
    std::istringstream text(listing);
    for (std::string line; std::getline(text, line);) {
        lines.push_back(line);
    }
    return lines;
}

struct ListedLine {
    double share = 0;
    std::string name;

    bool operator==(const ListedLine&) const = default;

    friend void PrintTo(const ListedLine& line, std::ostream* stream) {
        *stream << line.share << ' ' << line.name;
    }
};

// The lines of a top listing below its heading.
inline std::vector<ListedLine> listed(const std::optional<std::string>& topListing) {
    std::vector<ListedLine> processes;
    const auto lines = linesOf(topListing.value_or(""));
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const auto line = withoutBlanks(lines[i]);
        const auto blank = line.find(' ');
        processes.push_back(
            {decimalNumber(line.substr(0, blank)).value(), std::string(line.substr(blank + 1))});
    }
    return processes;
}

inline std::optional<double> shareOf(const std::string& name, const std::optional<std::string>& topListing) {
    for (const auto& process : listed(topListing)) {
        if (process.name == name) {
            return process.share;
        }
    }
    return std::nullopt;
}

} // namespace quelby
