#pragma once

namespace quelby::cli {

// In character cells; each is 1 or more.
struct TerminalSize {
    int columns = 80;
    int rows = 24;

    bool operator==(const TerminalSize&) const = default;
};

} // namespace quelby::cli
