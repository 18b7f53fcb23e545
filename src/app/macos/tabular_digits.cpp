#include "app/macos/tabular_digits.h"

namespace quelby::app {

namespace {

template <typename Font>
void ask(Font& font) {
    if constexpr (requires { typename Font::Tag; }) {
        font.setFeature(typename Font::Tag("tnum"), 1);
    }
}

} // namespace

QFont withTabularDigits(QFont font) {
    ask(font);
    return font;
}

} // namespace quelby::app
