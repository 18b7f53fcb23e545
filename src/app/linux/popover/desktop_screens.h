// The screens of this desktop, and what its panels keep for themselves.
#pragma once

#include <vector>

#include <QSize>

#include "app/linux/popover/edge_panels.h"
#include "app/linux/popover/panel_struts.h"
#include "app/linux/popover/popover_place.h"

namespace quelby::app {

// Of one screen, in pixels. The desktop is all screens together.
[[nodiscard]] QMargins reservedBy(const std::vector<Strut>& struts, QRect screen, QSize desktop);

// Needs Qt's application object. At least one.
[[nodiscard]] std::vector<DesktopScreen> desktopScreens(EdgePanels& edgePanels);

} // namespace quelby::app
