#include "app/linux/session/wayland_compositor.h"

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

#include <wayland-client.h>

namespace quelby::app {

namespace {

struct Disconnect {
    void operator()(wl_display* display) const { wl_display_disconnect(display); }
};

struct DestroyRegistry {
    void operator()(wl_registry* registry) const { wl_registry_destroy(registry); }
};

constexpr std::string_view layerShell = "zwlr_layer_shell_v1";
constexpr std::string_view viewporter = "wp_viewporter"; // without which a clear window costs a whole screen

struct Found {
    bool layerShell = false;
    bool viewporter = false;
};

void found(void* data, wl_registry* /*registry*/, std::uint32_t /*name*/, const char* interface,
           std::uint32_t /*version*/) {
    auto& all = *static_cast<Found*>(data);
    all.layerShell |= interface == layerShell;
    all.viewporter |= interface == viewporter;
}

} // namespace

WaylandOffer askWayland() {
    static constexpr wl_registry_listener listener{found, [](void*, wl_registry*, std::uint32_t) {}};
    const char* const name = std::getenv("WAYLAND_DISPLAY");
    if (name == nullptr || std::string_view(name).empty()) { // for which the library would guess
        return {};
    }
    const std::unique_ptr<wl_display, Disconnect> display(wl_display_connect(name));
    if (!display) {
        return {};
    }
    const std::unique_ptr<wl_registry, DestroyRegistry> registry(wl_display_get_registry(display.get()));
    Found all;
    wl_registry_add_listener(registry.get(), &listener, &all);
    const bool answers = wl_display_roundtrip(display.get()) >= 0;
    return {.answers = answers, .desktopWindows = answers && all.layerShell && all.viewporter};
}

} // namespace quelby::app
