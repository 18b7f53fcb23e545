#pragma once

#include <optional>
#include <string>
#include <vector>

#include <termios.h>

#include "base/problem.h"
#include "cli/terminal/watch_frame.h"

namespace quelby::cli {

// Whether standard output is a terminal in which lines can be drawn in place.
[[nodiscard]] bool canDrawInPlace();

// On a terminal, unless NO_COLOR asks for none (https://no-color.org).
[[nodiscard]] Colours terminalColours();

// How wide a curve may be: as the terminal is, within reason, and 80 columns elsewhere.
[[nodiscard]] int curveWidth();

// The terminal's second screen, with the cursor hidden and typing not shown. What was on the terminal comes
// back with the end of this object.
class TerminalScreen {
public:
    TerminalScreen();
    TerminalScreen(const TerminalScreen&) = delete;
    TerminalScreen& operator=(const TerminalScreen&) = delete;
    ~TerminalScreen();

    [[nodiscard]] TerminalSize size() const;

    // In one piece and without clearing first, so that nothing flickers.
    [[nodiscard]] Result<void> show(const std::vector<std::string>& lines);

    // Gives the terminal back for a while, and takes it again.
    void leave();
    void enter();

private:
    std::optional<termios> formerInput_; // none where standard input is no terminal
    bool entered_ = false;
};

} // namespace quelby::cli
