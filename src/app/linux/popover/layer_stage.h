#pragma once

#include <vector>

#include <QTimer>

#include "app/linux/popover/layer_shell.h"
#include "app/linux/popover/popover_stage.h"
#include "app/linux/popover/sway_focus.h"

namespace quelby::app {

// A window that belongs to the desktop, on compositors of Wayland that have such windows. Nobody tells where the
// pointer is; but a clear window over everything, on each screen, hears of it as soon as the button of the press is
// up, and of all presses afterwards, which then nobody else is told of.
class LayerStage final : public PopoverStage {
public:
    LayerStage(std::unique_ptr<LayerShell> shell, QQuickWindow& window, EdgePanels& panels,
               const ItemPress& press, QSize size, Listener listener);
    LayerStage(const LayerStage&) = delete;
    LayerStage& operator=(const LayerStage&) = delete;
    ~LayerStage() override;

    void letGo() override;

private:
    struct Catcher;

    void catchPresses();
    void pointerIsAt(QPoint point);
    void bringPopover();

    std::unique_ptr<LayerShell> shell_;
    QQuickWindow& window_;
    EdgePanels& panels_;
    ItemPress press_;
    QSize size_;
    Listener listener_;
    QTimer waiting_; // for the pointer
    std::vector<std::unique_ptr<Catcher>> catchers_;
    std::unique_ptr<SwayFocus> focus_;      // while the popover is there, on Sway
    std::unique_ptr<LayerSurface> popover_; // none before its place is known
};

} // namespace quelby::app
