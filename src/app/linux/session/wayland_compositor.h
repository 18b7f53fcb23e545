#pragma once

namespace quelby::app {

// Whether the Wayland compositor that the environment names answers.
[[nodiscard]] bool reachesWayland();

} // namespace quelby::app
