// What `quelbyctl watch` shows in a terminal: the dashboard, or where the energy went, between a header and
// the keys that can be pressed.
#pragma once

#include <optional>

#include "cli/terminal/layout/styled_line.h"
#include "cli/terminal/layout/terminal_size.h"
#include "ui/presentation/dashboard.h"
#include "ui/presentation/energy/energy_panel.h"

namespace quelby::cli {

struct WatchView {
    static constexpr int theEnd = 1'000'000; // rows, more than there can be

    TerminalSize size;
    int scrolledBy = 0; // rows of the cards that are above the upper edge
    bool help = false;  // the keys in place of the cards
};

struct WatchFrame {
    Block lines;            // no more than the terminal's rows, none wider than its columns
    int furthestScroll = 0; // where the last row of the cards is the last that is shown
    int page = 1;           // rows of the cards that are shown
};

// A view that is scrolled beyond the end shows the end. Where there is one, the energy takes the place of
// the cards.
[[nodiscard]] WatchFrame watchFrame(const Dashboard& dashboard, const WatchView& view,
                                    const std::optional<EnergyPanel>& energy = std::nullopt);

} // namespace quelby::cli
