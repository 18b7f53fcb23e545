#include "app/linux/popover/popover_stage.h"

#include "app/linux/popover/layer_stage.h"
#include "app/linux/popover/plain_stage.h"

namespace quelby::app {

std::unique_ptr<PopoverStage> enterStage(QQuickWindow& window, EdgePanels& panels, const ItemPress& press,
                                         QSize size, PopoverStage::Listener listener) {
    if (auto shell = LayerShell::find()) {
        return std::make_unique<LayerStage>(std::move(shell), window, panels, press, size,
                                            std::move(listener));
    }
    return std::make_unique<PlainStage>(window, panels, press, size, std::move(listener));
}

} // namespace quelby::app
