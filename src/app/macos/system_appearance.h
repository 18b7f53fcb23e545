// How the person likes the system's programs, by System Settings.
#pragma once

#include <functional>
#include <memory>

#include "ui/view/appearance.h"

namespace quelby::app {

// Dark is what the system's windows are; a popover may be otherwise. Its material is there, but where the person
// wants less transparency.
[[nodiscard]] Appearance systemAppearance();

// Hears each change of any of it, for as long as it lives.
class SystemAppearanceListener {
public:
    explicit SystemAppearanceListener(const std::function<void()>& changed);
    SystemAppearanceListener(const SystemAppearanceListener&) = delete;
    SystemAppearanceListener& operator=(const SystemAppearanceListener&) = delete;
    ~SystemAppearanceListener();

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace quelby::app
