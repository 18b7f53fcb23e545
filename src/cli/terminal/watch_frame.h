// What `quelbyctl watch` shows in a terminal, as lines of text.
#pragma once

#include <string>
#include <vector>

#include "monitor/published_fields.h"

namespace quelby::cli {

struct TerminalSize {
    int columns = 80;
    int rows = 24;

    bool operator==(const TerminalSize&) const = default;
};

enum class Colours { off, on };

// Battery, power split, busiest processes and trend, in lines that fit into the size, which is at least 1 by
// 1; what does not fit is cut off at the right and at the bottom. Without colours the lines hold no escape
// sequence.
[[nodiscard]] std::vector<std::string> watchFrame(const PublishedFields& fields, Date time, TerminalSize size,
                                                  Colours colours);

} // namespace quelby::cli
