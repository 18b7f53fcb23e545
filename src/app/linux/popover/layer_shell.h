#pragma once

#include <functional>
#include <memory>

#include <QWindow>

#include "app/linux/popover/layer_place.h"

namespace quelby::app {

// What a Wayland compositor offers to windows that belong to the desktop. On the connection of Qt, over a queue of
// its own: what comes for Qt meanwhile is Qt's to hand out.
class LayerShell {
public:
    // Nothing where Qt's windows are not of Wayland, or where the compositor has no such windows.
    [[nodiscard]] static std::unique_ptr<LayerShell> find();

    LayerShell(const LayerShell&) = delete;
    LayerShell& operator=(const LayerShell&) = delete;
    ~LayerShell();

    [[nodiscard]] wl_display* display() const { return display_; }

    [[nodiscard]] wl_event_queue* queue() const { return queue_; }

    [[nodiscard]] layer::Shell* shell() const { return shell_; }

    [[nodiscard]] layer::Viewporter* viewporter() const { return viewporter_; }

    [[nodiscard]] wl_shm* memory() const { return memory_; }

private:
    explicit LayerShell(wl_display* display);
    static void found(void* self, wl_registry* registry, std::uint32_t name, const char* interface,
                      std::uint32_t version);

    wl_display* display_; // Qt's
    wl_event_queue* queue_;
    layer::Shell* shell_ = nullptr;
    layer::Viewporter* viewporter_ = nullptr;
    wl_shm* memory_ = nullptr;
};

// Shows a window of Qt's, with Qt::BypassWindowManagerHint, as one that belongs to the desktop. With this object
// the window is hidden.
class LayerSurface {
public:
    // Both outlive this object. Has been configured when the constructor is back.
    LayerSurface(LayerShell& shell, QWindow& window, const LayerPlace& place, std::function<void()> closed);
    LayerSurface(const LayerSurface&) = delete;
    LayerSurface& operator=(const LayerSurface&) = delete;
    ~LayerSurface();

    // What the compositor makes of the size, in points.
    [[nodiscard]] QSize size() const { return size_; }

    void move(const LayerPlace& place);

    void releaseKeyboard();

    // In place of anything drawn: one clear pixel, as large as the window.
    void showNothing();

    // From now on the compositor's events come with those of Qt.
    void handOver();

private:
    void set(const LayerPlace& place);
    void awaitSize();
    static void configured(void* self, layer::Surface* surface, std::uint32_t serial, std::uint32_t width,
                           std::uint32_t height);
    static void closedByCompositor(void* self, layer::Surface* surface);

    LayerShell& shell_;
    QWindow& window_;
    std::function<void()> closed_;
    wl_surface* surface_ = nullptr; // Qt's
    layer::Surface* layer_ = nullptr;
    layer::Viewport* viewport_ = nullptr; // none but where nothing is drawn, as is the pixel
    wl_buffer* pixel_ = nullptr;
    QSize size_;
    bool answered_ = false; // to the last change
};

} // namespace quelby::app
