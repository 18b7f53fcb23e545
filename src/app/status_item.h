// The program's place in the menu bar, or in the tray of a desktop that has one.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "monitor/menu_bar_display.h"

namespace quelby::app {

// What a person can ask of the status item. All of them are set.
struct StatusItemActions {
    std::function<void()> toggle;                      // by a press
    std::function<void()> showDashboard;               // from its menu
    std::function<void()> showSettings;                // from its menu
    std::function<void(MenuBarDisplay)> chooseDisplay; // from its menu
    std::function<void(int steps)> scroll; // by the wheel: to the next figures, or back where negative
    std::function<void()> quit;            // from its menu
};

class StatusItem {
public:
    virtual ~StatusItem() = default;

    // Whether there is anything that could be pressed and show a title.
    [[nodiscard]] virtual bool hasButton() const = 0;

    virtual void setActions(StatusItemActions actions) = 0;

    // A symbol by its name. One that cannot be made leaves the one before. The description is what a screen
    // reader says of it; on Linux, whose hosts take none, it is ignored.
    virtual void setImage(std::string_view symbolName, std::string_view accessibilityDescription) = 0;

    // The battery's charge in percent, for desktops whose own icons say how full a battery is; others take no
    // notice.
    virtual void setLevel(std::int64_t percent) = 0;

    // With a leading blank, which keeps it off the image, or empty.
    virtual void setTitle(std::string_view title) = 0;

    // What is said of the item while the pointer rests on it.
    virtual void setToolTip(std::string_view text) = 0;

    // The figure that the title shows, for the menu that chooses it.
    virtual void setDisplay(MenuBarDisplay display) = 0;
};

} // namespace quelby::app
