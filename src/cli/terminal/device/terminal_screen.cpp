#include "cli/terminal/device/terminal_screen.h"

#include <cstdlib>
#include <string_view>

#include <sys/ioctl.h>
#include <unistd.h>

#include <fmt/format.h>

#include "console/standard_output.h"

namespace quelby::cli {

namespace {

// Control sequences of ECMA-48 and of xterm's private modes, which every terminal in use follows.
constexpr std::string_view enterScreen = "\x1b[?1049h\x1b[?25l\x1b[2J";
constexpr std::string_view leaveScreen = "\x1b[?25h\x1b[?1049l";
constexpr std::string_view beginUpdate = "\x1b[?2026h"; // draw nothing until the update ends
constexpr std::string_view endUpdate = "\x1b[?2026l";
constexpr std::string_view clearScreen = "\x1b[2J";
constexpr std::string_view clearRestOfLine = "\x1b[K";

std::string_view environment(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? "" : value;
}

TerminalSize terminalSize() {
    winsize size{};
    if (::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0 || size.ws_row == 0) {
        return {};
    }
    return {size.ws_col, size.ws_row};
}

} // namespace

int outputColumns() {
    return terminalSize().columns;
}

bool canDrawInPlace() {
    return ::isatty(STDOUT_FILENO) == 1 && environment("TERM") != "dumb";
}

ColorDepth outputColors() {
    return ::isatty(STDOUT_FILENO) == 1
               ? colorDepth(environment("TERM"), environment("COLORTERM"), environment("NO_COLOR"))
               : ColorDepth::none;
}

TerminalScreen::TerminalScreen() {
    enter();
}

TerminalScreen::~TerminalScreen() {
    leave();
}

void TerminalScreen::enter() {
    if (entered_) {
        return;
    }
    entered_ = true;
    shown_.clear();
    termios input{};
    // From the background, changing the terminal would stop the program.
    if (::tcgetpgrp(STDIN_FILENO) == ::getpgrp() && ::tcgetattr(STDIN_FILENO, &input) == 0) {
        formerInput_ = input;
        input.c_lflag &= ~static_cast<tcflag_t>(ECHO | ICANON);
        ::tcsetattr(STDIN_FILENO, TCSANOW, &input);
    }
    static_cast<void>(writeToStandardOutput(enterScreen));
}

void TerminalScreen::leave() {
    if (!entered_) {
        return;
    }
    entered_ = false;
    static_cast<void>(writeToStandardOutput(leaveScreen));
    if (formerInput_) {
        ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &*formerInput_); // what was typed meanwhile is not for the shell
        formerInput_.reset();
    }
}

TerminalSize TerminalScreen::size() const {
    return terminalSize();
}

Result<void> TerminalScreen::show(const std::vector<std::string>& lines) {
    std::string update(beginUpdate);
    if (shown_.size() != lines.size() || shownSize_ != terminalSize()) {
        update += clearScreen; // a new size moves what is there
        shown_.assign(lines.size(), {});
        shownSize_ = terminalSize();
    }
    for (std::size_t row = 0; row < lines.size(); ++row) {
        if (lines[row] != shown_[row]) {
            update += fmt::format("\x1b[{}H{}{}", row + 1, lines[row], clearRestOfLine);
        }
    }
    shown_ = lines;
    update += endUpdate;
    return writeToStandardOutput(update);
}

} // namespace quelby::cli
