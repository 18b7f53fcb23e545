#pragma once

#include <functional>
#include <memory>

#include <QPoint>

namespace quelby::app {

// Tells of every press of a pointer's button, wherever on the screen it is, for as long as this object is
// there. The press goes where it goes all the same. X11 only: over a connection of its own, by raw events of
// the second X Input Extension, which need no grab.
class OutsidePresses {
public:
    // In pixels of the screen. The listener may end this object.
    using Listener = std::function<void(QPoint where)>;

    // Nothing where there is no X server.
    [[nodiscard]] static std::unique_ptr<OutsidePresses> watch(Listener listener);

    virtual ~OutsidePresses() = default;
};

} // namespace quelby::app
