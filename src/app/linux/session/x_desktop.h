#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QRgb>

#include "app/linux/session/x_settings.h"

namespace quelby::app {

// What an X11 desktop tells its programs beside the session's bus: by properties on the windows of its
// managers, which come, go and change their minds. Over a connection of its own.
class XDesktop {
public:
    struct Listener {
        std::function<void()> settingsChanged;
        std::function<void()> trayChanged; // it has come, or its ink is another
        std::function<void()> gone;        // the X server; nothing follows
    };

    // Nothing where there is no X server.
    [[nodiscard]] static std::unique_ptr<XDesktop> connect(Listener listener);

    virtual ~XDesktop() = default;

    [[nodiscard]] virtual const XSettings& settings() const = 0;

    // The colour in which the tray of the older kind wants its icons drawn. Nothing without such a tray, or
    // where it has no idea.
    [[nodiscard]] virtual std::optional<QRgb> trayInk() const = 0;
};

// From the tray's property: red, green and blue in 16 bits each, for icons, errors, warnings and successes.
// A tray for which all four are the same has not looked at its panel.
[[nodiscard]] std::optional<QRgb> trayInk(const QByteArray& property);

} // namespace quelby::app
