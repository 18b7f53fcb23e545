#pragma once

#include <string>

#include <QString>

#include "app/linux/tray/panel_ink.h"

namespace quelby::app {

// The name of the theme that the panel has of its own, from the settings of its desktop as they are now. Empty
// where it has none. The folder holds the user's settings.
[[nodiscard]] std::string panelTheme(PanelStyle style, const QString& configurationFolder);

} // namespace quelby::app
