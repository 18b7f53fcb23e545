// Nothing covers anything, sticks out of its card or is cut, whatever there is to say.
#include <QGuiApplication>
#include <gtest/gtest.h>

#include "ui/support/shown_view.h"

namespace quelby {
namespace {

constexpr double tolerance = 0.6; // points; positions are rounded to pixels

enum class Texts { asTheyAre, twiceAsLong };

struct Case {
    const char* name;
    std::function<void(PublishedFields& fields)> set;
    bool settings = false;
    bool asking = false; // whether to uninstall
};

const Case cases[] = {
    {"charging", [](auto&) {}},
    {"onBattery", [](auto& fields) { fields.isPluggedIn = false; }},
    {"withoutHelper", [](auto& fields) { fields.daemonInstalled = false; }},
    {"desktop", [](auto& fields) { fields.hasBattery = false; }},
    {"nothingYet",
     [](auto& fields) {
         fields.topProcesses = std::vector<ProcessInfo_Energy>{};
         fields.historyData = std::vector<HistoryDataPoint>{};
         fields.powerHistory = std::vector<double>{};
     }},
    {"largeFigures",
     [](auto& fields) {
         fields.chargePower = 188.8;
         fields.totalPower = 288.8;
         fields.acTotal = 476;
         fields.cpuPower = 188;
         fields.cpuUsage = 100;
         fields.historyMax = 288.8;
         fields.todayWh = 8888.8;
         fields.efficiency = 100;
         fields.batteryPercent = 100;
         fields.cycleCount = 1888;
         fields.amperage = -18888;
         fields.topProcesses = std::vector<ProcessInfo_Energy>{{"MMMMMMMMMMMMMMMMMMMMMMMMM", 3188.8, 188},
                                                               {"WWWWWWWWWWWWWWWWWWWW", 100, 88}};
         fields.predictedTime = "~88h 88m remaining";
         fields.batteryRateStr = "-188.8%/hr";
     }},
    {"settings", [](auto&) {}, true},
    {"settingsWithoutHelper",
     [](auto& fields) {
         fields.daemonInstalled = false;
         fields.lastCalibrationDate = std::nullopt;
     },
     true},
    {"tip", [](auto& fields) { fields.shouldShowChargingTip = true; }},
    {"question", [](auto&) {}, true, true},
};

void PrintTo(const Case& shown, std::ostream* stream) {
    *stream << shown.name;
}

class Layout : public testing::TestWithParam<std::tuple<Case, Texts, Qt::LayoutDirection>> {
protected:
    Layout() {
        const auto& [shown, texts, direction] = GetParam();
        QGuiApplication::setLayoutDirection(direction);
        fillEveryCard(*dashboard.monitor);
        shown.set(*dashboard.monitor);
        view.emplace(dashboard);
        view->root().setProperty("showUninstallConfirm", shown.asking);
        view->showSettings(shown.settings);
        if (texts == Texts::twiceAsLong) {
            lengthenTexts();
        }
    }

    ~Layout() override { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }

    // Figures are as long in every language.
    void lengthenTexts() {
        for (auto* const text : visibleItems(foreground(), "QQuickText")) {
            if (isA(*text, "FigureText") || enclosing(*text, "SliderScale") != nullptr) {
                continue;
            }
            const auto shown = text->property("text").toString();
            text->setProperty("text", shown + ' ' + shown);
        }
        view->settle();
    }

    [[nodiscard]] static bool isControl(const QQuickItem& item) {
        return isA(item, "QQuickControl") || isA(item, "ChartFrame");
    }

    // A question covers all the rest, which is meant.
    [[nodiscard]] const QQuickItem& foreground() const {
        const auto questions = visibleItems(view->root(), "ConfirmDialog");
        return questions.empty() ? view->root() : *questions.front()->childItems().back();
    }

    // What is to be seen: controls whole, and texts, symbols and bars that are in none.
    [[nodiscard]] std::vector<QQuickItem*> pieces() const {
        std::vector<QQuickItem*> found;
        for (auto* const item : visibleItems(foreground(), "QQuickItem")) {
            const bool piece = isControl(*item) || isA(*item, "QQuickText") || isA(*item, "SymbolItem") ||
                               isA(*item, "ProportionBar");
            if (piece && !isInControl(*item) && !isA(*item, "ScrollIndicator")) {
                found.push_back(item);
            }
        }
        return found;
    }

    [[nodiscard]] static bool isInControl(const QQuickItem& item) {
        for (const auto* around = item.parentItem(); around != nullptr; around = around->parentItem()) {
            if (isControl(*around)) {
                return true;
            }
        }
        return false;
    }

    // No program has such a name; what matters is that it keeps to its column.
    [[nodiscard]] static bool isOfTheWidestLetters(const QQuickItem& text) {
        const auto letters = text.property("text").toString();
        return letters.startsWith("MMMM") || letters.startsWith("WWWW");
    }

    [[nodiscard]] static std::string nameOf(const QQuickItem& item) {
        const auto text = item.property("text").toString() + item.property("name").toString();
        return std::string(item.metaObject()->className()) + " \"" + text.toStdString() + '"';
    }

    MadeUpDashboard dashboard;
    std::optional<ShownView> view;
};

TEST_P(Layout, LetsNothingCoverAnything) {
    const auto found = pieces();
    ASSERT_GE(found.size(), 4U);
    for (std::size_t i = 0; i < found.size(); ++i) {
        for (std::size_t other = i + 1; other < found.size(); ++other) {
            const auto common = view->placeOf(*found[i]) & view->placeOf(*found[other]);
            EXPECT_FALSE(common.width() > tolerance && common.height() > tolerance)
                << nameOf(*found[i]) << " and " << nameOf(*found[other]);
        }
    }
}

TEST_P(Layout, KeepsEverythingInItsCardAndInTheView) {
    for (const auto* const item : pieces()) {
        const auto place = view->placeOf(*item);
        const auto* const card = enclosing(*item, "CardChrome");
        const auto around = card != nullptr ? view->placeOf(*card) : view->placeOf(foreground());
        const double margin = card != nullptr ? 12 : 16;
        EXPECT_GE(place.left(), around.left() + margin - tolerance) << nameOf(*item);
        EXPECT_LE(place.right(), around.right() - margin + tolerance) << nameOf(*item);
        if (card != nullptr) {
            EXPECT_GE(place.top(), around.top() - tolerance) << nameOf(*item);
            EXPECT_LE(place.bottom(), around.bottom() + tolerance) << nameOf(*item);
        }
    }
}

TEST_P(Layout, KeepsEveryTextInItsControl) {
    for (const auto* const text : visibleItems(foreground(), "QQuickText")) {
        if (const auto* const control = enclosing(*text, "QQuickControl")) {
            EXPECT_TRUE(view->placeOf(*control)
                            .adjusted(-tolerance, -tolerance, tolerance, tolerance)
                            .contains(view->placeOf(*text)))
                << nameOf(*text);
        }
    }
}

class LayoutOfTheTextsAsTheyAre : public Layout {};

TEST_P(LayoutOfTheTextsAsTheyAre, CutsNoText) {
    for (const auto* const text : visibleItems(foreground(), "QQuickText")) {
        EXPECT_FALSE(text->property("truncated").toBool() && !isOfTheWidestLetters(*text)) << nameOf(*text);
        EXPECT_LE(text->property("contentWidth").toDouble(), text->width() + tolerance) << nameOf(*text);
    }
}

std::string nameOf(const testing::TestParamInfo<Layout::ParamType>& info) {
    const auto& [shown, texts, direction] = info.param;
    return std::string(shown.name) + (texts == Texts::twiceAsLong ? "TwiceAsLong" : "") +
           (direction == Qt::RightToLeft ? "FromTheRight" : "");
}

INSTANTIATE_TEST_SUITE_P(States, Layout,
                         testing::Combine(testing::ValuesIn(cases),
                                          testing::Values(Texts::asTheyAre, Texts::twiceAsLong),
                                          testing::Values(Qt::LeftToRight, Qt::RightToLeft)),
                         &nameOf);

INSTANTIATE_TEST_SUITE_P(States, LayoutOfTheTextsAsTheyAre,
                         testing::Combine(testing::ValuesIn(cases), testing::Values(Texts::asTheyAre),
                                          testing::Values(Qt::LeftToRight, Qt::RightToLeft)),
                         &nameOf);

} // namespace
} // namespace quelby
