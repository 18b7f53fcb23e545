// What every card says, as one JSON object: a key for each part that is shown, in display order. A thing with
// nothing to say is null.
#pragma once

#include <string>

#include "ui/presentation/cards/settings_panel.h"
#include "ui/presentation/dashboard.h"

namespace quelby::cli {

[[nodiscard]] std::string dashboardAsJson(const Dashboard& dashboard);
[[nodiscard]] std::string settingsAsJson(const SettingsPanel& panel);

} // namespace quelby::cli
