#pragma once

#include <functional>
#include <memory>

namespace quelby::app {

// Tells whenever Sway gives the focus to a window or a workspace. A window that belongs to the desktop keeps the
// keyboard there, and so hears nothing of it.
class SwayFocus {
public:
    // The listener may end this object. Nothing where no Sway is running.
    [[nodiscard]] static std::unique_ptr<SwayFocus> watch(std::function<void()> moved);

    virtual ~SwayFocus() = default;
};

} // namespace quelby::app
