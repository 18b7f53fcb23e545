#include "app/linux/popover/layer_protocol.h"

#include <array>

namespace quelby::app::layer {

namespace {

extern const wl_interface surfaceInterface;
extern const wl_interface viewportInterface;

template <typename Object>
wl_proxy* proxyOf(Object* object) {
    return reinterpret_cast<wl_proxy*>(object);
}

// The letters of a message are those of wl_message: i and u for numbers, o for an object, n for a new one, s for a
// text, f for a fraction, ? before what may be missing, and a version before all.
constexpr std::array<const wl_interface*, 5> plain{};

const std::array<const wl_interface*, 5> typesOfGetSurface{&surfaceInterface, &wl_surface_interface,
                                                           &wl_output_interface, nullptr, nullptr};
const std::array<const wl_interface*, 2> typesOfGetViewport{&viewportInterface, &wl_surface_interface};

// NOLINTBEGIN(cppcoreguidelines-pro-type-const-cast): the library takes its descriptions as variables
wl_message message(const char* name, const char* arguments, const wl_interface* const* types = plain.data()) {
    return {name, arguments, const_cast<const wl_interface**>(types)};
}

// NOLINTEND(cppcoreguidelines-pro-type-const-cast)

const std::array shellRequests{message("get_layer_surface", "no?ous", typesOfGetSurface.data()),
                               message("destroy", "3")};

enum SurfaceRequest : std::uint32_t {
    setSizeRequest,
    setAnchorRequest,
    setExclusiveZoneRequest,
    setMarginRequest,
    setKeyboardInteractivityRequest,
    getPopupRequest,
    ackConfigureRequest,
    destroyRequest,
};

const std::array surfaceRequests{message("set_size", "uu"),
                                 message("set_anchor", "u"),
                                 message("set_exclusive_zone", "i"),
                                 message("set_margin", "iiii"),
                                 message("set_keyboard_interactivity", "u"),
                                 message("get_popup", "o"),
                                 message("ack_configure", "u"),
                                 message("destroy", ""),
                                 message("set_layer", "2u")};
const std::array surfaceEvents{message("configure", "uuu"), message("closed", "")};

const std::array viewporterRequests{message("destroy", ""),
                                    message("get_viewport", "no", typesOfGetViewport.data())};
const std::array viewportRequests{message("destroy", ""), message("set_source", "ffff"),
                                  message("set_destination", "ii")};

constexpr std::uint32_t getLayerSurfaceRequest = 0;
constexpr std::uint32_t destroyShellRequest = 1;
constexpr std::uint32_t destroyShellSince = 3;
constexpr std::uint32_t destroyViewRequest = 0; // of both
constexpr std::uint32_t getViewportRequest = 1;
constexpr std::uint32_t setDestinationRequest = 2;

const wl_interface surfaceInterface{"zwlr_layer_surface_v1", static_cast<int>(newestShell),
                                    surfaceRequests.size(),  surfaceRequests.data(),
                                    surfaceEvents.size(),    surfaceEvents.data()};
const wl_interface viewportInterface{"wp_viewport",           1, viewportRequests.size(),
                                     viewportRequests.data(), 0, nullptr};

template <typename Object, typename... Arguments>
void request(Object* object, std::uint32_t number, Arguments... arguments) {
    auto* const proxy = proxyOf(object);
    wl_proxy_marshal_flags(proxy, number, nullptr, wl_proxy_get_version(proxy), 0, arguments...);
}

template <typename Object>
void lastRequest(Object* object, std::uint32_t number) {
    auto* const proxy = proxyOf(object);
    wl_proxy_marshal_flags(proxy, number, nullptr, wl_proxy_get_version(proxy), WL_MARSHAL_FLAG_DESTROY);
}

template <typename Made, typename Object, typename... Arguments>
Made* make(Object* object, std::uint32_t number, const wl_interface& interface, Arguments... arguments) {
    auto* const proxy = proxyOf(object);
    return reinterpret_cast<Made*>(wl_proxy_marshal_flags(
        proxy, number, &interface, wl_proxy_get_version(proxy), 0, nullptr, arguments...));
}

} // namespace

const wl_interface shellInterface{"zwlr_layer_shell_v1",
                                  static_cast<int>(newestShell),
                                  shellRequests.size(),
                                  shellRequests.data(),
                                  0,
                                  nullptr};
const wl_interface viewporterInterface{"wp_viewporter",           1, viewporterRequests.size(),
                                       viewporterRequests.data(), 0, nullptr};

Surface* getSurface(Shell* shell, wl_surface* surface, wl_output* output, std::uint32_t layer,
                    const char* name) {
    return make<Surface>(shell, getLayerSurfaceRequest, surfaceInterface, surface, output, layer, name);
}

void listen(Surface* surface, const SurfaceListener* listener, void* data) {
    // The library calls them through the signatures that the events have.
    using Table = void (**)();
    wl_proxy_add_listener(proxyOf(surface), reinterpret_cast<Table>(const_cast<SurfaceListener*>(listener)),
                          data);
}

void setSize(Surface* surface, std::uint32_t width, std::uint32_t height) {
    request(surface, setSizeRequest, width, height);
}

void setAnchors(Surface* surface, std::uint32_t anchors) {
    request(surface, setAnchorRequest, anchors);
}

void setExclusiveZone(Surface* surface, std::int32_t zone) {
    request(surface, setExclusiveZoneRequest, zone);
}

void setMargins(Surface* surface, std::int32_t top, std::int32_t right, std::int32_t bottom,
                std::int32_t left) {
    request(surface, setMarginRequest, top, right, bottom, left);
}

void setKeyboard(Surface* surface, Keyboard keyboard) {
    request(surface, setKeyboardInteractivityRequest, static_cast<std::uint32_t>(keyboard));
}

void acknowledge(Surface* surface, std::uint32_t serial) {
    request(surface, ackConfigureRequest, serial);
}

void destroy(Surface* surface) {
    lastRequest(surface, destroyRequest);
}

void destroy(Shell* shell) {
    if (wl_proxy_get_version(proxyOf(shell)) >= destroyShellSince) {
        lastRequest(shell, destroyShellRequest);
    } else {
        wl_proxy_destroy(proxyOf(shell));
    }
}

Viewport* getViewport(Viewporter* viewporter, wl_surface* surface) {
    return make<Viewport>(viewporter, getViewportRequest, viewportInterface, surface);
}

void setDestination(Viewport* viewport, std::int32_t width, std::int32_t height) {
    request(viewport, setDestinationRequest, width, height);
}

void destroy(Viewport* viewport) {
    lastRequest(viewport, destroyViewRequest);
}

void destroy(Viewporter* viewporter) {
    lastRequest(viewporter, destroyViewRequest);
}

} // namespace quelby::app::layer
