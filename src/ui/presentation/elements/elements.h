// What the cards are made of. Records of values: they can be compared, so that whoever draws them knows what
// has changed.
#pragma once

#include <string>
#include <string_view>

#include "ui/presentation/elements/color.h"
#include "ui/presentation/elements/record.h"

namespace quelby {

#define QUELBY_MEMBERS_OF_Text(MEMBER)                                                                       \
    MEMBER(words, std::string, text) /* one line, or a sentence that may be wrapped */                       \
    MEMBER(part, Color, color)

struct Text {
    QUELBY_RECORD(Text)
};

#define QUELBY_MEMBERS_OF_Symbol(MEMBER)                                                                     \
    MEMBER(words, std::string_view, name) /* as macOS names its own; lives as long as the program */         \
    MEMBER(part, Color, color)

struct Symbol {
    QUELBY_RECORD(Symbol)
};

// A symbol and the text beside it.
#define QUELBY_MEMBERS_OF_Label(MEMBER)                                                                      \
    MEMBER(part, Symbol, symbol)                                                                             \
    MEMBER(part, Text, text)

struct Label {
    QUELBY_RECORD(Label)
};

#define QUELBY_MEMBERS_OF_Bar(MEMBER)                                                                        \
    MEMBER(plain, double, fraction) /* 0 empty to 1 full */                                                  \
    MEMBER(part, Color, color)

struct Bar {
    QUELBY_RECORD(Bar)
};

// Part of the whole as a bar, which neither overflows nor falls below empty.
[[nodiscard]] Bar bar(double part, double whole, Color color);

// How full it is, for those who cannot see it.
[[nodiscard]] std::string percentText(const Bar& bar);

// A thing that can be switched on, in words.
#define QUELBY_MEMBERS_OF_Option(MEMBER)                                                                     \
    MEMBER(part, Text, title)                                                                                \
    MEMBER(part, Text, subtitle)                                                                             \
    MEMBER(plain, bool, enabled)

struct Option {
    QUELBY_RECORD(Option)
};

// One button of a row, of which one is selected.
#define QUELBY_MEMBERS_OF_Choice(MEMBER)                                                                     \
    MEMBER(words, std::string, text)                                                                         \
    MEMBER(plain, bool, selected)

struct Choice {
    QUELBY_RECORD(Choice)
};

[[nodiscard]] Text primary(std::string text);
[[nodiscard]] Text secondary(std::string text);

} // namespace quelby
