// Every card as lines of text.
#pragma once

#include <vector>

#include "cli/terminal/layout/styled_line.h"
#include "ui/presentation/cards/settings_panel.h"
#include "ui/presentation/dashboard.h"

namespace quelby::cli {

// In display order, each of them this many columns wide, its frame included.
[[nodiscard]] std::vector<Block> dashboardCards(const Dashboard& dashboard, int columns);
[[nodiscard]] std::vector<Block> settingsCards(const SettingsPanel& panel, int columns);

} // namespace quelby::cli
