// Every text can be read on what is behind it, by the contrast of the Web Content Accessibility Guidelines 2.
#include <algorithm>
#include <cmath>
#include <map>

#include <QQmlComponent>
#include <gtest/gtest.h>

#include "ui/support/printing.h"
#include "ui/support/shown_view.h"

namespace quelby {
namespace {

constexpr double readable = 4.5;

double linear(double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const double first = luminance(one);
    const double second = luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

QColor over(const QColor& upper, const QColor& lower) {
    const auto mixed = [&](double above, double below) {
        return static_cast<float>(above * upper.alphaF() + below * (1 - upper.alphaF()));
    };
    return QColor::fromRgbF(mixed(upper.redF(), lower.redF()), mixed(upper.greenF(), lower.greenF()),
                            mixed(upper.blueF(), lower.blueF()));
}

TEST(Contrast, IsThatOfTheGuidelines) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 1e-9);
    EXPECT_NEAR(contrast(Qt::white, Qt::white), 1, 1e-9);
    EXPECT_NEAR(contrast(QColor("#767676"), Qt::white), 4.54, 0.005);
    EXPECT_EQ(over(QColor(255, 255, 255, 0), Qt::blue), QColor(Qt::blue));
}

// The most frequent colour of a part of the picture.
QColor backgroundOf(const QImage& picture, const QRect& part) {
    std::map<QRgb, int> counts;
    const auto inside = part & picture.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    const auto most = std::max_element(counts.begin(), counts.end(),
                                       [](const auto& a, const auto& b) { return a.second < b.second; });
    return most == counts.end() ? QColor() : QColor(most->first);
}

QObject* themeOf(ShownView& view) {
    QQmlComponent component(&view.view().engine());
    component.setData("import QtQml; import Quelby; QtObject { property QtObject theme: Theme }", {});
    const std::unique_ptr<QObject> asking(component.create());
    return asking ? asking->property("theme").value<QObject*>() : nullptr;
}

// For texts that lie on no card.
TEST(Contrast, IsEnoughWhateverIsBehindAWindowThatItShinesThrough) {
    for (const bool dark : {false, true}) {
        MadeUpDashboard dashboard;
        ShownView view(dashboard, {.dark = dark, .animated = false, .backdrop = Backdrop::blurred});
        auto* const theme = themeOf(view);
        ASSERT_NE(theme, nullptr);
        const auto window = theme->property("window").value<QColor>();
        EXPECT_LT(window.alphaF(), 1);
        for (const QColor behind : {Qt::black, Qt::white}) {
            const auto background = over(window, behind);
            EXPECT_GE(contrast(theme->property("quiet").value<QColor>(), background), readable);
        }
    }
}

class Readability : public testing::TestWithParam<bool> {
protected:
    [[nodiscard]] static bool dark() { return GetParam(); }

    Readability() { fillEveryCard(*dashboard.monitor); }

    // The unit beside the charging power; the figure says what matters.
    [[nodiscard]] static bool isPaleByDesign(const QQuickItem& text) {
        return text.property("text") == "W" && text.property("color").value<QColor>().alpha() < 255;
    }

    // Of every text that is in sight now.
    void expectReadable(ShownView& view, const QQuickItem& part) {
        const auto picture = view.picture();
        for (const auto* const text : visibleItems(part, "QQuickText")) {
            const auto place = view.placeOf(*text).toAlignedRect();
            if (!picture.rect().contains(place) || place.isEmpty() || isPaleByDesign(*text)) {
                continue;
            }
            const auto background = backgroundOf(picture, place.marginsAdded({3, 3, 3, 3}));
            const auto ink = over(text->property("color").value<QColor>(), background);
            EXPECT_GE(contrast(ink, background), readable)
                << text->property("text").toString().toStdString() << ": " << testing::PrintToString(ink)
                << " on " << testing::PrintToString(background);
            ++texts;
        }
    }

    void expectReadableFromTopToEnd(ShownView& view) {
        for (const double top : {0.0, 400.0, 800.0, 1e6}) {
            view.view().scrollTo(top);
            view.settle();
            expectReadable(view, view.root());
        }
    }

    MadeUpDashboard dashboard;
    int texts = 0;
};

TEST_P(Readability, OfTheDashboard) {
    ShownView view(dashboard, {.dark = dark(), .animated = false});
    expectReadableFromTopToEnd(view);
    dashboard.monitor->daemonInstalled = false;
    dashboard.monitor->isPluggedIn = false;
    dashboard.monitor->totalPower = 35;
    dashboard.monitor->batteryPercent = 15;
    dashboard.monitor->efficiency = 10;
    view.settle();
    expectReadableFromTopToEnd(view);
    EXPECT_GT(texts, 100);
}

// The quiet texts are what it is asked for.
TEST_P(Readability, IsHigherWhereTheDesktopAsksForIt) {
    ShownView view(dashboard, {.dark = dark(), .animated = false, .contrast = true});
    expectReadableFromTopToEnd(view);
    auto* const theme = themeOf(view);
    ASSERT_NE(theme, nullptr);
    const auto card =
        over(theme->property("card").value<QColor>(), theme->property("window").value<QColor>());
    EXPECT_GE(contrast(theme->property("quiet").value<QColor>(), card), 7);
    EXPECT_GE(contrast(theme->property("divider").value<QColor>(), card), 3);
}

TEST_P(Readability, OfTheSettings) {
    ShownView view(dashboard, {.dark = dark(), .animated = false});
    view.showSettings();
    expectReadableFromTopToEnd(view);
    EXPECT_GT(texts, 30);
}

TEST_P(Readability, OfTheQuestions) {
    ShownView view(dashboard, {.dark = dark(), .animated = false});
    for (const bool uninstall : {false, true}) {
        dashboard.model.setShouldShowChargingTip(!uninstall);
        view.root().setProperty("showUninstallConfirm", uninstall);
        view.settle();
        const auto dialogs = visibleItems(view.root(), "ConfirmDialog");
        ASSERT_EQ(dialogs.size(), 1U);
        expectReadable(view, *dialogs.front());
    }
    EXPECT_EQ(texts, 2 * 4);
}

// In every colour, whether a card shows it today or not.
TEST_P(Readability, OfEveryInkOnACard) {
    ShownView view(dashboard, {.dark = dark(), .animated = false});
    auto* const theme = themeOf(view);
    ASSERT_NE(theme, nullptr);
    const auto window = theme->property("window").value<QColor>();
    const auto card = over(theme->property("card").value<QColor>(), window);
    const auto inks = theme->property("inks").value<QList<QColor>>();
    ASSERT_EQ(inks.size(), allColorNames.size());
    for (const auto name : allColorNames) {
        if (name != ColorName::white) { // only on what is filled
            const auto ink = inks[ColorValue(name).name()];
            EXPECT_GE(contrast(ink, card), readable) << text(name);
            EXPECT_GE(contrast(ink, window), readable) << text(name);
        }
    }
    const auto fills = theme->property("fills").value<QList<QColor>>();
    EXPECT_GE(contrast(Qt::white, fills[Ink::Accent]), readable);
}

// However light it is.
TEST_P(Readability, OfTheDesktopsAccent) {
    ShownView view(dashboard, {.dark = dark(), .animated = false, .accent = 0xFFEE55});
    auto* const theme = themeOf(view);
    ASSERT_NE(theme, nullptr);
    const auto accent = theme->property("fills").value<QList<QColor>>()[Ink::Accent];
    EXPECT_GE(contrast(Qt::white, accent), readable);
    EXPECT_NEAR(accent.hslHue(), QColor(0xFF, 0xEE, 0x55).hslHue(), 2);
    view.view().setAppearance({.dark = dark(), .animated = false});
    EXPECT_EQ(theme->property("fills").value<QList<QColor>>()[Ink::Accent], QColor("#2f6feb"));
}

INSTANTIATE_TEST_SUITE_P(Themes, Readability, testing::Bool(),
                         [](const auto& theme) { return std::string(theme.param ? "dark" : "light"); });

} // namespace
} // namespace quelby
