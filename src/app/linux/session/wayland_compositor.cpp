#include "app/linux/session/wayland_compositor.h"

#include <cstdlib>
#include <memory>
#include <string_view>

#include <wayland-client.h>

namespace quelby::app {

namespace {

struct Disconnect {
    void operator()(wl_display* display) const { wl_display_disconnect(display); }
};

} // namespace

bool reachesWayland() {
    const char* const name = std::getenv("WAYLAND_DISPLAY");
    if (name == nullptr || std::string_view(name).empty()) { // for which the library would guess
        return false;
    }
    const std::unique_ptr<wl_display, Disconnect> display(wl_display_connect(name));
    return display && wl_display_roundtrip(display.get()) >= 0;
}

} // namespace quelby::app
