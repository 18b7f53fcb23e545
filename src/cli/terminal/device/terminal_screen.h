#pragma once

#include <optional>
#include <string>
#include <vector>

#include <termios.h>

#include "base/problem.h"
#include "cli/terminal/device/terminal_colors.h"
#include "cli/terminal/layout/terminal_size.h"

namespace quelby::cli {

// Whether standard output is a terminal in which lines can be drawn in place.
[[nodiscard]] bool canDrawInPlace();

// None where standard output is no terminal.
[[nodiscard]] ColorDepth outputColors();

// How wide text may be: as the terminal is, and 80 columns elsewhere.
[[nodiscard]] int outputColumns();

// The terminal's second screen, with the cursor hidden and typing not shown. What was on the terminal comes
// back with the end of this object.
class TerminalScreen {
public:
    TerminalScreen();
    TerminalScreen(const TerminalScreen&) = delete;
    TerminalScreen& operator=(const TerminalScreen&) = delete;
    ~TerminalScreen();

    [[nodiscard]] TerminalSize size() const;

    // Whether what is typed comes here: standard input is this terminal, and the program is in its
    // foreground.
    [[nodiscard]] bool takesKeys() const { return formerInput_.has_value(); }

    // In one piece, and only the lines that differ from those that are there, so that nothing flickers.
    [[nodiscard]] Result<void> show(const std::vector<std::string>& lines);

    // Gives the terminal back for a while, and takes it again.
    void leave();
    void enter();

private:
    std::optional<termios> formerInput_; // none where standard input is no terminal of ours
    bool entered_ = false;
    std::vector<std::string> shown_;
    TerminalSize shownSize_;
};

} // namespace quelby::cli
