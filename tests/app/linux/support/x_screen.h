#pragma once

#include <optional>
#include <string>
#include <vector>

#include <QRect>

#include "app/linux/session/x_connection.h"
#include "app/linux/support/x_settings_property.h"
#include "support/running_program.h"

namespace quelby {

struct XWindow {
    xcb_window_t id = XCB_WINDOW_NONE;
    QRect area; // within its frame, in pixels of the screen

    bool operator==(const XWindow&) const = default;
};

// A screen of 1280 x 1024 that nobody sees, with a window manager, and a person's hands in front of it.
class XScreen {
public:
    // Says which program is missing that this needs.
    [[nodiscard]] static std::optional<std::string> missing();

    XScreen();

    [[nodiscard]] const std::string& display() const { return display_; }

    // The windows that the window manager shows under the program's name.
    [[nodiscard]] std::vector<XWindow> windows() const;

    // The window of that name that a tray has taken in.
    [[nodiscard]] std::optional<XWindow> docked() const;

    [[nodiscard]] bool hasTray() const;
    [[nodiscard]] bool hasKeyboard(const XWindow& window) const;
    [[nodiscard]] bool hasFrame(const XWindow& window) const;

    [[nodiscard]] bool isOutOfWindowLists(const XWindow& window) const;

    void press(QPoint where) const;

    // To no window at all.
    void takeKeyboardAway() const;

    void type(const std::string& key) const; // as xdotool names keys

    // The settings that the programs of the desktop share. To begin with, no two presses are a double one.
    void setSettings(const XSettingValues& values);

    // There is a compositor, which blurs what is behind the windows that ask for it.
    void announceBlur();

    // What it blurs behind the window, in pixels of it; nothing where it was not asked.
    [[nodiscard]] QRect blurredBehind(const XWindow& window) const;

    // The server ends, and with it the screen.
    void end();

    // As the button in the window's frame does.
    void closeByItsFrame(const XWindow& window) const;

private:
    [[nodiscard]] std::vector<std::uint32_t> property(xcb_window_t window, const char* name) const;
    [[nodiscard]] std::string nameOf(xcb_window_t window) const;
    [[nodiscard]] std::optional<QRect> shownArea(xcb_window_t window) const;
    [[nodiscard]] std::optional<XWindow> dockedBelow(xcb_window_t window) const;
    void byHand(std::vector<std::string> words) const;

    RunningProgram server_;
    std::string display_;
    RunningProgram manager_;
    app::XConnection connection_;
    xcb_window_t root_ = XCB_WINDOW_NONE;
    xcb_window_t settings_ = XCB_WINDOW_NONE;
};

} // namespace quelby
