// The whole dashboard as lines of text, for a terminal of a given width.
#pragma once

#include "cli/terminal/layout/styled_line.h"
#include "ui/presentation/cards/settings_panel.h"
#include "ui/presentation/dashboard.h"

namespace quelby::cli {

[[nodiscard]] Line headerLine(const Header& header, int columns);

// The header and the cards below it.
[[nodiscard]] Block dashboardText(const Dashboard& dashboard, int columns);
[[nodiscard]] Block settingsText(const SettingsPanel& panel, int columns);

} // namespace quelby::cli
