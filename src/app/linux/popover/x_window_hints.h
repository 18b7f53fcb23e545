// What Qt does not tell the X server of a window. Does nothing where the program has no X server.
#pragma once

#include <QWindow>

namespace quelby::app {

// No entry in the taskbar, nor in the pager. To be said before each showing: a window manager forgets it.
void keepOutOfWindowLists(QWindow& window);

// Nothing is ever drawn into the window, and what is behind it is seen.
void keepClear(QWindow& window);

// Whether what is behind a window is seen through its clear parts.
[[nodiscard]] bool showsTransparency();

} // namespace quelby::app
