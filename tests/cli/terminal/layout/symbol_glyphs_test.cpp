#include "cli/terminal/layout/symbol_glyphs.h"

#include <gtest/gtest.h>

#include "cli/terminal/layout/display_width.h"
#include "ui/presentation/dashboard.h"

namespace quelby::cli {
namespace {

TEST(SymbolGlyphs, AreOneColumnWide) {
    for (const auto* name : {"bolt.fill", "clock", "heart.fill", "sparkles", "battery.100percent",
                             "exclamationmark.triangle.fill", "there.is.no.such.symbol"}) {
        EXPECT_EQ(displayWidth(glyph(name)), 1) << name;
    }
}

TEST(SymbolGlyphs, AreADotForWhatHasNone) {
    EXPECT_EQ(glyph("there.is.no.such.symbol"), "•");
    EXPECT_NE(glyph("bolt.fill"), "•");
}

TEST(SymbolGlyphs, TellTheAdvicesApart) {
    EXPECT_NE(glyph("exclamationmark.triangle.fill"), glyph("checkmark.circle.fill"));
    EXPECT_NE(glyph("circle.fill"), glyph("checkmark.circle.fill"));
}

} // namespace
} // namespace quelby::cli
