#pragma once

#include <vector>

#include <QSize>
#include <Qt>

namespace quelby::app {

// What a panel of X11 keeps free for itself (as the window managers' specification calls it).
struct Strut {
    Qt::Edge edge; // of all screens together
    int depth = 0; // pixels from that edge
    int first = 0; // pixels along it, as is the last one
    int last = 0;
};

struct PanelStruts {
    QSize desktop; // all screens together, in pixels
    std::vector<Strut> struts;
};

// As the panels themselves tell the window manager on X11, which not every window manager passes on. Nothing
// where there is no X server.
[[nodiscard]] PanelStruts panelStruts();

} // namespace quelby::app
