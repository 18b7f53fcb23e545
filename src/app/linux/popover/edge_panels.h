// The panels of desktops of Wayland, on which nobody tells programs of them, as their own programs have it.
#pragma once

#include <string_view>
#include <vector>

#include <QMargins>
#include <QRect>

namespace quelby::app {

struct EdgePanel {
    QPoint screen; // the corner of the one that it is on, in points
    Qt::Edge edge = Qt::BottomEdge;
    int depth = 0; // points

    bool operator==(const EdgePanel&) const = default;
};

// Asks the desktop that this session is of. None where it is none of those below, or does not answer soon.
[[nodiscard]] std::vector<EdgePanel> edgePanels();

// From the answer of Plasma's shell to a script: a line for each panel, with its screen's corner, its edge and its depth
// ("0 0 bottom 44"). What is not understood is left out.
[[nodiscard]] std::vector<EdgePanel> plasmaPanels(std::string_view answer);

// From Sway's list of workspaces and its list of outputs, in JSON: what a workspace that is shown leaves of its output, but
// for the gaps that are around it on all sides.
[[nodiscard]] std::vector<EdgePanel> swayPanels(std::string_view workspaces, std::string_view outputs);

// By those panels, of a screen in points.
[[nodiscard]] QMargins reservedBy(const std::vector<EdgePanel>& panels, QRect screen);

} // namespace quelby::app
