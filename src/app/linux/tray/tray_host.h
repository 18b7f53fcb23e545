// The programs that show status items on Linux desktops, and what each of them makes of an item. They differ
// in whatever the protocol leaves open, so an item has to know who shows it: the program behind the watcher
// of the protocol. Measured with the versions of Debian 12.
#pragma once

#include <string_view>

#include "app/linux/tray/panel_ink.h"

namespace quelby::app {

enum class IconForm {
    symbol,  // a square; the title stands beside it as a label
    file,    // the same, read from a file on the disk
    wide,    // the symbol with the title drawn beside it
    compact, // a square with the title drawn below a small symbol
};

// What a host sends for a turn of the wheel.
enum class WheelUnit {
    notch, // whatever the number, it is one step
    angle, // eighths of a degree, 120 for a step: touchpads and fine wheels send less at a time
};

struct WheelHabit {
    WheelUnit unit = WheelUnit::notch;
    bool downIsPositive = false;

    bool operator==(const WheelHabit&) const = default;
};

struct TrayHost {
    IconForm icon = IconForm::compact;
    bool showsLabel = false; // the title beside the icon

    // Otherwise a press of the first button would open it instead of the dashboard. Such a host opens the same
    // menu, or none, by either button, and tells of neither.
    bool wantsMenu = true;

    // Where a press succeeds, this host takes every later one for the first half of a double press.
    bool pressMustFail = false;

    // The coordinates of a press are those of the screen, in pixels.
    bool knowsCoordinates = true;

    bool readsTipTitle = false; // and nothing else of a tool tip

    // Any signal makes it ask for all properties, pictures and tool tip among them.
    bool readsAllAtOnce = false;

    WheelHabit wheel;
    PanelStyle panel = PanelStyle::unknown;

    bool operator==(const TrayHost&) const = default;
};

// By the short name of the watcher's process (as /proc/PID/comm has it, at most 15 bytes).
[[nodiscard]] TrayHost trayHost(std::string_view processName);

} // namespace quelby::app
