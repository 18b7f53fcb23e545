// Stands in for AppKit: one menu bar, one pointer, one keyboard.
#pragma once

#include <array>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace quelby::fake {

struct MenuRow {
    std::string title; // empty for a separator
    bool marked = false;

    bool operator==(const MenuRow&) const = default;
};

struct AppKit {
    bool itemsHaveButtons = true;
    bool buttonsAreInWindows = true;
    bool itemsHaveRoom = true; // in the menu bar
    std::set<std::string> missingSymbols;
    bool menuBarIsDark = false;
    bool systemIsDark = false;
    std::string fontFamily = ".AppleSystemUIFont";
    bool reducesMotion = false;
    bool reducesTransparency = false;
    bool increasesContrast = false;
    std::optional<std::array<double, 3>> accent = {{0, 0.5, 1}}; // in sRGB; none: it cannot be told there
    bool viewsAreFlipped = true;
    std::string choice; // the row that is chosen from the next menu; none where there is no such row

    std::vector<std::string>
        calls; // what the program asked of the application, the item and the popover, in order
    std::vector<MenuRow> menu; // the last one that was opened
    std::string menuPlace;     // of it, in the view
};

// As a test has made it.
[[nodiscard]] AppKit& appKit();

// As it is before a program has asked anything of it.
void startAnew();

struct Image {
    std::string symbol;
    std::string description;
    bool isTemplate = false;

    bool operator==(const Image&) const = default;
};

struct Button {
    std::optional<Image> image;
    std::string title;
    std::string toolTip;
    bool hasTarget = false;
};

// Of the item that was made last.
[[nodiscard]] Button button();

[[nodiscard]] int itemsInTheBar();

enum class Press { primary, secondary, primaryWithControl };

// The button sends its action, if it has been told to for such a press.
void press(Press how);

// A key goes down in the application. Whether it came through all monitors as the same event.
[[nodiscard]] bool keyComesThrough(const std::string& characters, bool command);

// A person clicks elsewhere.
void clickElsewhere();

// The person changes the menu bar, the system's windows, a colour of theirs, or what makes them easier to see.
void menuBarTurns(bool dark);
void systemTurns(bool dark);
void colorsChange();
void accessibilityChanges();

// The application's delegate would now be told so.
void finishLaunching();
void willTerminate();

} // namespace quelby::fake
