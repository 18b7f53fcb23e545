// The panels of Plasma, which on Wayland nobody else tells of.
#pragma once

#include <string_view>
#include <vector>

#include <QMargins>
#include <QRect>

namespace quelby::app {

struct PlasmaPanel {
    QPoint screen; // the corner of the one that it is on, in points
    Qt::Edge edge = Qt::BottomEdge;
    int depth = 0; // points

    bool operator==(const PlasmaPanel&) const = default;
};

// Asks Plasma's shell. None where it is not running or does not answer soon.
[[nodiscard]] std::vector<PlasmaPanel> plasmaPanels();

// From the answer: a line for each panel, with its screen's corner, its edge and its depth ("0 0 bottom 44"). What is not
// understood is left out.
[[nodiscard]] std::vector<PlasmaPanel> plasmaPanelsIn(std::string_view answer);

// By those panels, of a screen in points.
[[nodiscard]] QMargins reservedBy(const std::vector<PlasmaPanel>& panels, QRect screen);

} // namespace quelby::app
