#pragma once

#include <vector>

#include "cli/terminal/layout/styled_line.h"
#include "ui/presentation/energy/energy_panel.h"

namespace quelby::cli {

// Where the energy went: every section in display order, each of them this many columns wide, its frame
// included.
[[nodiscard]] std::vector<Block> energyCards(const EnergyPanel& panel, int columns);

} // namespace quelby::cli
