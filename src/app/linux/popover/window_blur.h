#pragma once

#include <QRegion>
#include <QWindow>

namespace quelby::app {

// The part of a window with round corners that is inside of these, in pixels.
[[nodiscard]] QRegion insideOfCorners(QSize size, double radius);

// Asks the compositor to blur what is behind that part. Whether it is one that does so for X11's windows, as
// KWin; the program may then be drawn with a background that lets some of it through.
[[nodiscard]] bool askForBlur(QWindow& window, double radius);

} // namespace quelby::app
