#include "app/linux/session/wayland_compositor.h"

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

#include <QSocketNotifier>
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

using Display = std::unique_ptr<wl_display, Disconnect>;

Display connected() {
    const char* const name = std::getenv("WAYLAND_DISPLAY");
    const bool named =
        name != nullptr && !std::string_view(name).empty(); // otherwise the library would guess
    return Display(named ? wl_display_connect(name) : nullptr);
}

class ConnectedWatch final : public CompositorWatch {
public:
    explicit ConnectedWatch(Display display) : display_(std::move(display)) {}

    void follow(std::function<void()> gone) override {
        readable_ =
            std::make_unique<QSocketNotifier>(wl_display_get_fd(display_.get()), QSocketNotifier::Read);
        QObject::connect(readable_.get(), &QSocketNotifier::activated, readable_.get(),
                         [this, gone = std::move(gone)] {
                             if (!isThere()) {
                                 readable_->setEnabled(false);
                                 gone();
                             }
                         });
    }

private:
    // Takes in what has come, of which nothing is of any interest.
    [[nodiscard]] bool isThere() const {
        while (wl_display_prepare_read(display_.get()) != 0) {
            wl_display_dispatch_pending(display_.get());
        }
        return wl_display_read_events(display_.get()) >= 0 &&
               wl_display_dispatch_pending(display_.get()) >= 0;
    }

    Display display_;
    std::unique_ptr<QSocketNotifier> readable_; // none before anybody follows
};

} // namespace

WaylandOffer askWayland() {
    static constexpr wl_registry_listener listener{found, [](void*, wl_registry*, std::uint32_t) {}};
    const auto display = connected();
    if (!display) {
        return {};
    }
    const std::unique_ptr<wl_registry, DestroyRegistry> registry(wl_display_get_registry(display.get()));
    Found all;
    wl_registry_add_listener(registry.get(), &listener, &all);
    const bool answers = wl_display_roundtrip(display.get()) >= 0;
    return {.answers = answers, .desktopWindows = answers && all.layerShell && all.viewporter};
}

std::unique_ptr<CompositorWatch> CompositorWatch::connect() {
    auto display = connected();
    return display ? std::make_unique<ConnectedWatch>(std::move(display)) : nullptr;
}

} // namespace quelby::app
