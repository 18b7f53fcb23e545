// The requests of two extensions of Wayland that the popover makes: wlr-layer-shell, for windows that belong to the
// desktop, and viewporter, for pictures that are stretched. Debian has no header for the former, and a description
// that a generator could read is longer than this: a number and the kinds of its arguments for each request.
#pragma once

#include <cstdint>

#include <wayland-client.h>

namespace quelby::app::layer {

// As the extensions name themselves, with what libwayland has to know of their messages.
extern const wl_interface shellInterface;
extern const wl_interface viewporterInterface;

constexpr std::uint32_t newestShell = 4;

struct Shell;
struct Surface;
struct Viewporter;
struct Viewport;

enum Anchor : std::uint32_t { top = 1, bottom = 2, left = 4, right = 8 };

enum class Keyboard : std::uint32_t { none, exclusive, onDemand }; // the last since version 4

constexpr std::uint32_t overlay = 3; // above everything, also above a program in full screen

struct SurfaceListener {
    // A size of zero is for the client to choose.
    void (*configure)(void* data, Surface* surface, std::uint32_t serial, std::uint32_t width,
                      std::uint32_t height);
    void (*closed)(void* data, Surface* surface);
};

[[nodiscard]] Surface* getSurface(Shell* shell, wl_surface* surface, wl_output* output, std::uint32_t layer,
                                  const char* name);
void listen(Surface* surface, const SurfaceListener* listener, void* data);
void setSize(Surface* surface, std::uint32_t width, std::uint32_t height); // zero: from anchor to anchor
void setAnchors(Surface* surface, std::uint32_t anchors);
void setExclusiveZone(Surface* surface, std::int32_t zone); // -1: panels are taken no notice of
void setMargins(Surface* surface, std::int32_t top, std::int32_t right, std::int32_t bottom,
                std::int32_t left);
void setKeyboard(Surface* surface, Keyboard keyboard);
void acknowledge(Surface* surface, std::uint32_t serial);
void destroy(Surface* surface);
void destroy(Shell* shell);

[[nodiscard]] Viewport* getViewport(Viewporter* viewporter, wl_surface* surface);
void setDestination(Viewport* viewport, std::int32_t width, std::int32_t height);
void destroy(Viewport* viewport);
void destroy(Viewporter* viewporter);

} // namespace quelby::app::layer
