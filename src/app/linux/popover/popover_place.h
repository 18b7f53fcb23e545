// Where the popover stands, and how high it is: at the item, beside the item's panel, whole on the screen.
#pragma once

#include <optional>
#include <vector>

#include <QMargins>
#include <QPoint>
#include <QRect>

namespace quelby::app {

inline constexpr int popoverGap = 6; // points between the popover and what is around it

// Whether a panel at this edge goes from left to right.
[[nodiscard]] constexpr bool isHorizontal(Qt::Edge edge) {
    return edge == Qt::TopEdge || edge == Qt::BottomEdge;
}

struct DesktopScreen {
    QRect pixels;      // among the other screens, as the display server counts them
    QMargins reserved; // for panels, in pixels
    double scale = 1;  // pixels in a point
    bool main = false; // one at the most
};

// What is known of a press of the item.
struct ItemPress {
    // By the host. Some count in pixels and some in points, of the screen or of an output whose scale nobody
    // else knows; most mean the pointer, and some a corner of the item. Nothing from those that are known to
    // mean something else.
    std::optional<QPoint> told;

    // In pixels. Nothing where the display server does not know: on Wayland, and for programs of X11 there,
    // whose server sees the pointer only above their own windows.
    std::optional<QPoint> pointer;

    bool isNew = false; // it is what the popover opens for; otherwise it was an earlier one
};

struct PopoverPlace {
    std::size_t screen = 0;       // of those that were given
    QRect area;                   // in points of that screen, whose corner is where it is in pixels
    Qt::Edge panel = Qt::TopEdge; // from where it comes
};

// What is nearest to a panel of what is known of the item's place is believed. Where nothing is, it is the
// corner at the panel, or the upper right one, where trays mostly are. The size is the one that it has where
// there is room for it: it may become lower, but not narrower. There is at least one screen.
[[nodiscard]] PopoverPlace popoverPlace(const ItemPress& press, const std::vector<DesktopScreen>& screens,
                                        QSize size);

} // namespace quelby::app
