#include "app/macos/macos_status_item.h"

#include <gmock/gmock.h>

#include "macos/doubles/app_kit.h"
#include "macos/doubles/frameworks.h"
#include "ui/presentation/text/words.h"

namespace quelby::app {
namespace {

using fake::appKit;
using fake::Press;
using testing::ElementsAre;
using testing::IsEmpty;

class MacosStatusItemTest : public testing::Test {
protected:
    MacosStatusItemTest() { fake::startAnew(); }

    [[nodiscard]] StatusItemActions recordedActions() {
        const auto record = [this](const char* action) {
            return [this, action] { asked.emplace_back(action); };
        };
        return {.toggle = record("toggle"),
                .showDashboard = record("show dashboard"),
                .showSettings = record("show settings"),
                .chooseDisplay =
                    [this](MenuBarDisplay display) {
                        asked.push_back("choose " + std::string(rawValue(display)));
                    },
                .scroll = [this](int) { asked.emplace_back("scroll"); },
                .quit = record("quit")};
    }

    [[nodiscard]] std::unique_ptr<MacosStatusItem> wiredItem() {
        auto item = std::make_unique<MacosStatusItem>();
        item->setActions(recordedActions());
        return item;
    }

    std::vector<std::string> asked;
};

TEST_F(MacosStatusItemTest, IsOfVariableLengthWithItsImageLeadingAndItsActionWired) {
    const auto item = wiredItem();
    EXPECT_TRUE(item->hasButton());
    EXPECT_EQ(fake::itemsInTheBar(), 1);
    EXPECT_THAT(appKit().calls, ElementsAre("statusItemWithLength -1", "setImagePosition leading",
                                            "setTarget", "setAction togglePopover:"));
}

TEST_F(MacosStatusItemTest, ShowsTheSymbolAsATemplateWithItsDescription) {
    MacosStatusItem item;
    EXPECT_EQ(fake::button().image, std::nullopt);
    item.setImage("bolt.fill", "Quelby");
    EXPECT_EQ(fake::button().image, (fake::Image{"bolt.fill", "Quelby", true}));
}

TEST_F(MacosStatusItemTest, KeepsTheFormerImageWhereTheSymbolCannotBeMade) {
    appKit().missingSymbols = {"battery.75percent"};
    MacosStatusItem item;
    item.setImage("battery.75percent", "Quelby");
    EXPECT_EQ(fake::button().image, std::nullopt);
    item.setImage("desktopcomputer", "Quelby");
    item.setImage("battery.75percent", "Quelby");
    EXPECT_EQ(fake::button().image, (fake::Image{"desktopcomputer", "Quelby", true}));
}

TEST_F(MacosStatusItemTest, ShowsTitleAndToolTipToTheLetter) {
    MacosStatusItem item;
    item.setTitle(std::string_view(" 31.4°C and more").substr(0, 8));
    item.setToolTip("80%, charging, 35.0 W");
    EXPECT_EQ(fake::button().title, " 31.4°C");
    EXPECT_EQ(fake::button().toolTip, "80%, charging, 35.0 W");
    item.setTitle("");
    EXPECT_EQ(fake::button().title, "");
}

TEST_F(MacosStatusItemTest, TogglesWhenItIsPressed) {
    const auto item = wiredItem();
    fake::press(Press::primary);
    fake::press(Press::primary);
    EXPECT_THAT(asked, ElementsAre("toggle", "toggle"));
    EXPECT_THAT(appKit().menu, IsEmpty());
}

TEST_F(MacosStatusItemTest, OpensItsMenuOnASecondaryPressOrWithControl) {
    const auto item = wiredItem();
    item->setDisplay(MenuBarDisplay::voltage);
    const std::vector<fake::MenuRow> rows{{std::string(words::showDashboard)},
                                          {""},
                                          {"Power (W)"},
                                          {"Battery %"},
                                          {"Current (mA)"},
                                          {"Voltage (V)", true},
                                          {"Temperature"},
                                          {"Icon Only"},
                                          {""},
                                          {std::string(words::settings)},
                                          {std::string(words::quit)}};
    for (const auto how : {Press::secondary, Press::primaryWithControl}) {
        appKit().menu.clear();
        fake::press(how);
        EXPECT_EQ(appKit().menu, rows);
    }
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(MacosStatusItemTest, MarksTheFirstDisplayBeforeOneIsSet) {
    const auto item = wiredItem();
    fake::press(Press::secondary);
    EXPECT_TRUE(appKit().menu.at(2).marked);
}

TEST_F(MacosStatusItemTest, OpensItsMenuBelowItselfWhicheverWayTheViewCounts) {
    const auto item = wiredItem();
    fake::press(Press::secondary);
    EXPECT_EQ(appKit().menuPlace, "0,24");
    appKit().viewsAreFlipped = false;
    fake::press(Press::secondary);
    EXPECT_EQ(appKit().menuPlace, "0,0");
}

TEST_F(MacosStatusItemTest, DoesWhatIsChosenInItsMenu) {
    const auto item = wiredItem();
    for (const auto row : {words::showDashboard, words::settings, words::quit,
                           rawValue(MenuBarDisplay::watts), rawValue(MenuBarDisplay::iconOnly)}) {
        appKit().choice = row;
        fake::press(Press::secondary);
    }
    EXPECT_THAT(asked, ElementsAre("show dashboard", "show settings", "quit", "choose Power (W)",
                                   "choose Icon Only"));
}

TEST_F(MacosStatusItemTest, TakesOtherActionsInPlaceOfItsFormerOnes) {
    const auto item = wiredItem();
    auto others = recordedActions();
    others.toggle = [this] { asked.emplace_back("another toggle"); };
    item->setActions(others);
    fake::press(Press::primary);
    EXPECT_THAT(asked, ElementsAre("another toggle"));
}

TEST_F(MacosStatusItemTest, IsUselessButHarmlessWithoutAButton) {
    appKit().itemsHaveButtons = false;
    MacosStatusItem item;
    EXPECT_FALSE(item.hasButton());
    EXPECT_EQ(item.button(), nullptr);
    item.setImage("bolt.fill", "Quelby");
    item.setTitle(" 12W");
    item.setToolTip("80%");
    item.setDisplay(MenuBarDisplay::mA);
}

TEST_F(MacosStatusItemTest, LeavesTheBarAndItsButtonsTarget) {
    const auto item = std::make_unique<std::unique_ptr<MacosStatusItem>>(wiredItem());
    appKit().calls.clear();
    item->reset();
    EXPECT_EQ(fake::itemsInTheBar(), 0);
    EXPECT_THAT(appKit().calls, ElementsAre("setTarget nil"));
}

TEST_F(MacosStatusItemTest, LeavesNoObjectBehind) {
    const auto everything = [this] {
        const auto item = wiredItem();
        item->setImage("bolt.fill", "Quelby");
        item->setImage("desktopcomputer", "Quelby");
        item->setTitle(" 12W");
        item->setTitle(" 13W");
        item->setToolTip("80%");
        item->setActions(recordedActions());
        appKit().choice = words::settings;
        fake::press(Press::secondary);
        fake::press(Press::primary);
    };
    EXPECT_EQ(fake::objectsLeftBy(everything), 0);
}

} // namespace
} // namespace quelby::app
