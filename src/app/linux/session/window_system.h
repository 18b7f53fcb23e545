#pragma once

#include <optional>

#include <QPoint>

namespace quelby::app {

// Where the windows of this program are shown.
enum class WindowSystem {
    x11,
    xWayland, // an X server for those programs of a Wayland desktop that speak X11 only
    wayland,
    none, // nobody sees them
};

// Needs Qt's application object.
[[nodiscard]] WindowSystem windowSystem();

// In pixels. Nothing but on X11: elsewhere programs hear of the pointer only while it is above their windows.
[[nodiscard]] std::optional<QPoint> pointerPlace(WindowSystem system);

} // namespace quelby::app
