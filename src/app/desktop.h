// What the application asks of the desktop that it runs on. Each system has its own; the application is the
// same.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "app/popover.h"
#include "app/status_item.h"
#include "monitor/power_monitor.h"

namespace quelby::app {

struct KeyDown {
    bool command = false;   // the Command key of macOS, Control elsewhere
    std::string characters; // of the key, as if no modifier but Shift were held
};

class Desktop {
public:
    virtual ~Desktop() = default;

    // Made once, and the desktop's for as long as it is there, as is the popover.
    [[nodiscard]] virtual StatusItem& makeStatusItem() = 0;

    // At the status item, which is there already. The monitor is what the dashboard shows; `quit` is what its
    // quit button does.
    [[nodiscard]] virtual Popover& makePopover(std::shared_ptr<PowerMonitor> monitor,
                                               std::function<void()> quit) = 0;

    // Hands every key that is pressed in one of the program's windows to the handler first, which swallows it
    // by answering true. For as long as the program runs.
    virtual void addKeyMonitor(std::function<bool(const KeyDown&)> handler) = 0;

    // Ends the program's event loop.
    virtual void terminate() = 0;
};

} // namespace quelby::app
