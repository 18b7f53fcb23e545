#include "app/macos/tabular_digits.h"

namespace quelby::app {

namespace {

template <typename Font>
Font asked(Font font) {
    if constexpr (requires { typename Font::Tag; }) {
        font.setFeature(typename Font::Tag("tnum"), 1);
    }
    return font;
}

} // namespace

QFont withTabularDigits(QFont font) {
    return asked(std::move(font));
}

} // namespace quelby::app
