// Everything grows with the text, so that larger letters cut nothing.
#include <gtest/gtest.h>

#include "ui/support/printing.h"
#include "ui/support/shown_view.h"

namespace quelby {
namespace {

class TextScale : public testing::TestWithParam<double> {
protected:
    TextScale() { fillEveryCard(*dashboard.monitor); }

    struct Texts {
        std::size_t all = 0;
        std::size_t cut = 0;
    };

    // Some texts end in an ellipsis at any size.
    [[nodiscard]] static Texts textsIn(ShownView& view) {
        Texts texts;
        for (const bool settings : {false, true}) {
            view.showSettings(settings);
            view.settle();
            for (const auto* const text : visibleItems(view.root(), "QQuickText")) {
                ++texts.all;
                texts.cut += text->property("truncated").toBool() ? 1U : 0U;
                EXPECT_LE(text->property("contentWidth").toDouble(), text->width() + 1)
                    << text->property("text").toString().toStdString();
            }
        }
        return texts;
    }

    MadeUpDashboard dashboard;
};

TEST_P(TextScale, MakesTheWholeViewLarger) {
    const ShownView view(dashboard, {.animated = false, .textScale = GetParam()});
    EXPECT_EQ(view.root().size(), (QSizeF(400, 660) * GetParam()));
}

TEST_P(TextScale, CutsNoTextThatIsWholeOtherwise) {
    ShownView usual(dashboard, {.animated = false});
    const auto expected = textsIn(usual);
    ShownView scaled(dashboard, {.animated = false, .textScale = GetParam()});
    const auto texts = textsIn(scaled);
    EXPECT_EQ(texts.all, expected.all);
    EXPECT_LE(texts.cut, expected.cut);
    EXPECT_GT(texts.all, 50U);
}

TEST_P(TextScale, FollowsTheDesktop) {
    ShownView view(dashboard, {.animated = false});
    view.view().setAppearance({.animated = false, .textScale = GetParam()});
    view.settle();
    EXPECT_EQ(view.root().size(), (QSizeF(400, 660) * GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Scales, TextScale, testing::Values(1, 1.25, 1.5), [](const auto& scale) {
    return std::to_string(static_cast<int>(scale.param * 100));
});

} // namespace
} // namespace quelby
