#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QPoint>

#include "app/linux/tray/item_content.h"

namespace quelby::app {

// The status item in a tray of the older kind, which takes windows in (the System Tray Protocol and XEmbed of
// freedesktop.org): the symbol and the title beside it, or below it where the tray gives no more than a
// square. X11 only, and over a connection of its own.
class XEmbedItem {
public:
    struct Listener {
        std::function<void(QPoint where)> pressed; // in pixels of the screen
        std::function<void(int steps)> scrolled;
        std::function<void()> lost; // the tray is gone, and with it the item
    };

    // Nothing where there is no X server or no tray of this kind.
    [[nodiscard]] static std::unique_ptr<XEmbedItem> dock(Listener listener);

    virtual ~XEmbedItem() = default;

    virtual void show(const ItemContent& content) = 0;
};

} // namespace quelby::app
