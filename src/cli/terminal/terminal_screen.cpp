#include "cli/terminal/terminal_screen.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include <sys/ioctl.h>
#include <unistd.h>

#include "console/standard_output.h"

namespace quelby::cli {

namespace {

// Control sequences of ECMA-48 and of xterm's private modes, which every terminal in use follows.
constexpr std::string_view enterScreen = "\x1b[?1049h\x1b[?25l\x1b[2J";
constexpr std::string_view leaveScreen = "\x1b[?25h\x1b[?1049l";
constexpr std::string_view beginUpdate = "\x1b[?2026h\x1b[H"; // draw nothing until the update ends
constexpr std::string_view endUpdate = "\x1b[J\x1b[?2026l";
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

int curveWidth() {
    return std::clamp(terminalSize().columns, 20, 120);
}

bool canDrawInPlace() {
    return ::isatty(STDOUT_FILENO) == 1 && environment("TERM") != "dumb";
}

Colours terminalColours() {
    return environment("NO_COLOR").empty() ? Colours::on : Colours::off;
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
    for (std::size_t i = 0; i < lines.size(); ++i) {
        update += i == 0 ? "" : "\r\n";
        update += lines[i];
        update += clearRestOfLine;
    }
    update += endUpdate;
    return writeToStandardOutput(update);
}

} // namespace quelby::cli
