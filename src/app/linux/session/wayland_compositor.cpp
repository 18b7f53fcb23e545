#include "app/linux/session/wayland_compositor.h"

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <thread>

#include <QGuiApplication>
#include <QThread>
#include <qpa/qplatformnativeinterface.h>
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

constexpr std::chrono::seconds longestFarewell(5);

bool isQtsCompositorGone() {
    auto* const native = QGuiApplication::platformNativeInterface();
    void* const display = native == nullptr ? nullptr : native->nativeResourceForIntegration("wl_display");
    return display != nullptr && wl_display_get_error(static_cast<wl_display*>(display)) != 0;
}

// Qt says so before it ends the program, in whichever of its threads has noticed it. That one waits here then, as it would
// end the program on its own way back, until the main thread has done so.
void exitWhenQtHasLostIt(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    auto* const application = QCoreApplication::instance();
    if (application != nullptr && type != QtDebugMsg && isQtsCompositorGone()) {
        if (QThread::currentThread() == application->thread()) {
            std::exit(0);
        }
        QMetaObject::invokeMethod(
            application, [] { std::exit(0); }, Qt::QueuedConnection);
        std::this_thread::sleep_for(longestFarewell);
    }
    std::fprintf(stderr, "%s\n",
                 qPrintable(qFormatLogMessage(type, context, text))); // as it would have done itself
}

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

void exitWithCompositor() {
    qInstallMessageHandler(exitWhenQtHasLostIt);
}

} // namespace quelby::app
