#include "app/macos/popover_choice.h"

#include <gmock/gmock.h>

namespace quelby::app {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Place {
    bool hasRoom = true;
    bool shown = false;
    std::vector<std::string> calls;
};

// A popover that shows where there is room for it.
class PlacedPopover final : public Popover {
public:
    explicit PlacedPopover(Place& place) : place_(place) {}

    [[nodiscard]] bool isShown() const override { return place_.shown; }

    void show() override {
        place_.calls.emplace_back("show");
        place_.shown = place_.hasRoom;
    }

    void showSettings() override {
        place_.calls.emplace_back("showSettings");
        place_.shown = place_.hasRoom;
    }

    void close() override {
        place_.calls.emplace_back("close");
        place_.shown = false;
    }

private:
    Place& place_;
};

class PopoverChoiceTest : public testing::Test {
protected:
    [[nodiscard]] PopoverChoice makeChoice(bool withFirst = true) {
        return {withFirst ? std::make_unique<PlacedPopover>(first) : nullptr, [this] {
                    ++made;
                    return std::make_unique<PlacedPopover>(other);
                }};
    }

    Place first;
    Place other;
    int made = 0;
};

TEST_F(PopoverChoiceTest, IsTheFirstOneWhereThatShows) {
    auto popover = makeChoice();
    EXPECT_FALSE(popover.isShown());
    popover.show();
    EXPECT_TRUE(popover.isShown());
    popover.close();
    EXPECT_FALSE(popover.isShown());
    EXPECT_THAT(first.calls, ElementsAre("show", "close"));
    EXPECT_EQ(made, 0);
}

TEST_F(PopoverChoiceTest, IsTheOtherWhereTheFirstOneDoesNotShow) {
    first.hasRoom = false;
    auto popover = makeChoice();
    popover.show();
    EXPECT_TRUE(popover.isShown());
    EXPECT_TRUE(other.shown);
    popover.close();
    EXPECT_FALSE(popover.isShown());
    EXPECT_THAT(other.calls, ElementsAre("show", "close"));
    EXPECT_THAT(first.calls, ElementsAre("show"));
}

TEST_F(PopoverChoiceTest, ComesBackToTheFirstOneAsSoonAsThatShows) {
    first.hasRoom = false;
    auto popover = makeChoice();
    popover.show();
    popover.close();
    first.hasRoom = true;
    popover.show();
    EXPECT_TRUE(first.shown);
    EXPECT_FALSE(other.shown);
}

TEST_F(PopoverChoiceTest, StaysWhereItIsShownAlready) {
    first.hasRoom = false;
    auto popover = makeChoice();
    popover.show();
    first.hasRoom = true;
    popover.showSettings();
    EXPECT_FALSE(first.shown);
    EXPECT_THAT(other.calls, ElementsAre("show", "showSettings"));
}

TEST_F(PopoverChoiceTest, ShowsTheSettingsInEither) {
    auto popover = makeChoice();
    popover.showSettings();
    EXPECT_THAT(first.calls, ElementsAre("showSettings"));
    EXPECT_THAT(other.calls, IsEmpty());
}

TEST_F(PopoverChoiceTest, NeedsNoFirstOne) {
    auto popover = makeChoice(false);
    EXPECT_FALSE(popover.isShown());
    popover.show();
    EXPECT_TRUE(popover.isShown());
    popover.show();
    EXPECT_EQ(made, 1);
}

} // namespace
} // namespace quelby::app
