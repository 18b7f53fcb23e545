// What the cards are made of. Records of values: they can be compared, so that whoever draws them knows what
// has changed.
#pragma once

#include <string>
#include <string_view>

#include "ui/presentation/color.h"

namespace quelby {

struct Text {
    std::string text; // one line of UTF-8, or a sentence that may be wrapped
    Color color;

    bool operator==(const Text&) const = default;
};

struct Symbol {
    std::string_view name; // as the system symbols of macOS are named; lives as long as the program
    Color color;

    bool operator==(const Symbol&) const = default;
};

// A symbol and the text beside it.
struct Label {
    Symbol symbol;
    Text text;

    bool operator==(const Label&) const = default;
};

struct Bar {
    double fraction = 0; // 0 empty to 1 full
    Color color;

    bool operator==(const Bar&) const = default;
};

// Part of the whole as a bar, which neither overflows nor falls below empty.
[[nodiscard]] Bar bar(double part, double whole, Color color);

// A thing that can be switched on, in words.
struct Option {
    Text title;
    Text subtitle;
    bool enabled = false;

    bool operator==(const Option&) const = default;
};

// One button of a row, of which one is selected.
struct Choice {
    std::string text;
    bool selected = false;

    bool operator==(const Choice&) const = default;
};

[[nodiscard]] Text primary(std::string text);
[[nodiscard]] Text secondary(std::string text);

} // namespace quelby
