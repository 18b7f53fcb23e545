// Which display server the program's windows go to. Decided before Qt is there: asked for one that it cannot
// reach, Qt ends the program in its own way.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "app/linux/session/wayland_compositor.h"
#include "base/problem.h"

namespace quelby::app {

struct Displays {
    std::string wanted; // as QT_QPA_PLATFORM names Qt's plugins, one or several; empty where it is not set
    bool x11 = false;   // an X server answers
    WaylandOffer wayland;
    std::function<bool(std::string_view name)> hasPlugin; // of Qt, for this kind of display
};

// The name of Qt's plugin. The problem is that nothing would show a window, and why.
[[nodiscard]] Result<std::string> chooseDisplay(const Displays& displays);

// Has Qt, which is not there yet, take the display of the environment that it can reach, by variables of the
// environment. Gives the name of Qt's plugin.
[[nodiscard]] Result<std::string> prepareDisplay();

[[nodiscard]] bool isOfWayland(std::string_view plugin);

// Takes these variables away again, so that programs that this one starts do not inherit them. Once a window has
// been shown.
void forgetDisplay();

} // namespace quelby::app
