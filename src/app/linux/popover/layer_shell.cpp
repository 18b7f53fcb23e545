#include "app/linux/popover/layer_shell.h"

#include <algorithm>
#include <string_view>

#include <QGuiApplication>
#include <QScreen>
#include <qpa/qplatformnativeinterface.h>
#include <sys/mman.h>
#include <unistd.h>

namespace quelby::app {

namespace {

constexpr int mostWaiting = 20; // for an answer, in turns of the compositor

void* resourceOfQt(const char* name) {
    return QGuiApplication::platformNativeInterface()->nativeResourceForIntegration(name);
}

template <typename Object>
Object* bound(wl_registry* registry, std::uint32_t name, const wl_interface& interface,
              std::uint32_t version) {
    return static_cast<Object*>(wl_registry_bind(registry, name, &interface, version));
}

// What is made through it has its events on another queue.
template <typename Object>
class OnQueue {
public:
    OnQueue(Object* object, wl_event_queue* queue)
        : wrapper_(static_cast<Object*>(wl_proxy_create_wrapper(object))) {
        wl_proxy_set_queue(reinterpret_cast<wl_proxy*>(wrapper_), queue);
    }

    OnQueue(const OnQueue&) = delete;
    OnQueue& operator=(const OnQueue&) = delete;

    ~OnQueue() { wl_proxy_wrapper_destroy(wrapper_); }

    [[nodiscard]] Object* get() const { return wrapper_; }

private:
    Object* wrapper_;
};

// A clear one; a null pointer where there is no memory.
wl_buffer* makePixel(wl_shm* memory) {
    constexpr int bytes = 4;
    const int file = ::memfd_create("quelby", MFD_CLOEXEC);
    if (file < 0 || ::ftruncate(file, bytes) != 0) {
        ::close(file);
        return nullptr;
    }
    auto* const pool = wl_shm_create_pool(memory, file, bytes);
    auto* const pixel = wl_shm_pool_create_buffer(pool, 0, 1, 1, bytes, WL_SHM_FORMAT_ARGB8888);
    wl_shm_pool_destroy(pool);
    ::close(file);
    return pixel;
}

} // namespace

std::unique_ptr<LayerShell> LayerShell::find() {
    if (!QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) {
        return nullptr;
    }
    auto* const display = static_cast<wl_display*>(resourceOfQt("wl_display"));
    if (display == nullptr) {
        return nullptr;
    }
    std::unique_ptr<LayerShell> shell(new LayerShell(display));
    const bool complete =
        shell->shell_ != nullptr && shell->viewporter_ != nullptr && shell->memory_ != nullptr;
    return complete ? std::move(shell) : nullptr;
}

LayerShell::LayerShell(wl_display* display) : display_(display), queue_(wl_display_create_queue(display)) {
    static constexpr wl_registry_listener listener{found, [](void*, wl_registry*, std::uint32_t) {}};
    const OnQueue<wl_display> own(display_, queue_);
    auto* const registry = wl_display_get_registry(own.get());
    wl_registry_add_listener(registry, &listener, this);
    wl_display_roundtrip_queue(display_, queue_);
    wl_registry_destroy(registry);
}

LayerShell::~LayerShell() {
    if (shell_ != nullptr) {
        layer::destroy(shell_);
    }
    if (viewporter_ != nullptr) {
        layer::destroy(viewporter_);
    }
    if (memory_ != nullptr) {
        wl_shm_destroy(memory_);
    }
    wl_event_queue_destroy(queue_);
}

void LayerShell::found(void* self, wl_registry* registry, std::uint32_t name, const char* interface,
                       std::uint32_t version) {
    auto& shell = *static_cast<LayerShell*>(self);
    const std::string_view what(interface);
    if (what == layer::shellInterface.name) {
        shell.shell_ =
            bound<layer::Shell>(registry, name, layer::shellInterface, std::min(version, layer::newestShell));
    } else if (what == layer::viewporterInterface.name) {
        shell.viewporter_ = bound<layer::Viewporter>(registry, name, layer::viewporterInterface, 1);
    } else if (what == wl_shm_interface.name) {
        shell.memory_ = bound<wl_shm>(registry, name, wl_shm_interface, 1);
    }
}

LayerSurface::LayerSurface(LayerShell& shell, QWindow& window, const LayerPlace& place,
                           std::function<void()> closed)
    : shell_(shell), window_(window), closed_(std::move(closed)) {
    static constexpr layer::SurfaceListener listener{configured, closedByCompositor};
    auto* const screen =
        window_.screen(); // as it has been chosen: by its place Qt may take it for another one
    window_.setPosition(screen->geometry().topLeft());
    window_.show(); // makes the surface; nothing is drawn before the event loop is back
    auto* const native = QGuiApplication::platformNativeInterface();
    surface_ = static_cast<wl_surface*>(native->nativeResourceForWindow("surface", &window_));
    auto* const output = static_cast<wl_output*>(native->nativeResourceForScreen("output", screen));
    const OnQueue<layer::Shell> own(shell_.shell(), shell_.queue());
    layer_ = layer::getSurface(own.get(), surface_, output, layer::overlay, "quelby");
    layer::listen(layer_, &listener, this);
    set(place);
    awaitSize();
}

LayerSurface::~LayerSurface() {
    if (viewport_ != nullptr) {
        layer::destroy(viewport_);
    }
    layer::destroy(layer_); // before its surface, which hiding takes away
    window_.hide();
    if (pixel_ != nullptr) {
        wl_buffer_destroy(pixel_);
    }
    wl_display_flush(shell_.display());
}

void LayerSurface::move(const LayerPlace& place) {
    set(place);
    if (place.size != size_) {
        awaitSize();
    }
}

void LayerSurface::set(const LayerPlace& place) {
    const auto& margins = place.margins;
    layer::setSize(layer_, static_cast<std::uint32_t>(place.size.width()),
                   static_cast<std::uint32_t>(place.size.height()));
    layer::setAnchors(layer_, place.anchors);
    layer::setMargins(layer_, margins.top(), margins.right(), margins.bottom(), margins.left());
    layer::setExclusiveZone(layer_, place.amongPanels ? -1 : 0);
    layer::setKeyboard(layer_, place.keyboard);
    wl_surface_commit(surface_);
}

void LayerSurface::awaitSize() {
    answered_ = false;
    for (int i = 0; i < mostWaiting && !answered_; ++i) {
        if (wl_display_roundtrip_queue(shell_.display(), shell_.queue()) < 0) {
            return;
        }
    }
}

void LayerSurface::releaseKeyboard() {
    layer::setKeyboard(layer_, layer::Keyboard::none);
    wl_surface_commit(surface_);
}

void LayerSurface::handOver() {
    wl_proxy_set_queue(reinterpret_cast<wl_proxy*>(layer_), nullptr);
}

void LayerSurface::showNothing() {
    pixel_ = makePixel(shell_.memory());
    viewport_ = layer::getViewport(shell_.viewporter(), surface_);
    layer::setDestination(viewport_, size_.width(), size_.height());
    wl_surface_attach(surface_, pixel_, 0, 0);
    wl_surface_damage(surface_, 0, 0, size_.width(), size_.height());
    wl_surface_commit(surface_);
    wl_display_flush(shell_.display());
}

void LayerSurface::configured(void* self, layer::Surface* surface, std::uint32_t serial, std::uint32_t width,
                              std::uint32_t height) {
    auto& me = *static_cast<LayerSurface*>(self);
    layer::acknowledge(surface, serial);
    me.size_ = QSize(static_cast<int>(width), static_cast<int>(height));
    me.answered_ = true;
}

void LayerSurface::closedByCompositor(void* self, layer::Surface* /*surface*/) {
    const auto closed = static_cast<LayerSurface*>(self)->closed_; // a copy: calling it may end the object
    closed();
}

} // namespace quelby::app
