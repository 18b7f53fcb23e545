#pragma once

#include <vector>

#include "app/linux/popover/outside_presses.h"
#include "app/linux/popover/popover_stage.h"
#include "app/linux/session/window_system.h"

namespace quelby::app {

// A window without a frame, which the window manager puts where it is told to. On X11 the server tells of
// every press. Where programs of Wayland take part it tells only of those on windows of X11; a clear window
// behind the popover, over all that is no panel, catches the others. A Wayland compositor decides the place
// alone.
class PlainStage final : public PopoverStage {
public:
    PlainStage(QQuickWindow& window, EdgePanels& panels, const ItemPress& press, QSize size,
               Listener listener);
    PlainStage(const PlainStage&) = delete;
    PlainStage& operator=(const PlainStage&) = delete;
    ~PlainStage() override;

    void letGo() override;

private:
    void place(const ItemPress& press, QSize size);
    void insistOnPlace();
    void watchPresses();
    void catchPresses();
    [[nodiscard]] bool isInside(QPoint pixel) const;

    QQuickWindow& window_;
    QPoint place_;             // of the window's corner
    bool hasInsisted_ = false; // on it
    Listener listener_;
    WindowSystem system_;
    std::vector<DesktopScreen> screens_;
    std::vector<std::unique_ptr<QWindow>> catchers_; // one on each screen, or none
    QObject moves_;                                  // listens to those of the window
    std::unique_ptr<OutsidePresses> presses_;        // none where the server tells of none
};

} // namespace quelby::app
