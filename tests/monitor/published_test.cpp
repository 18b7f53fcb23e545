#include "monitor/published.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quelby {
namespace {

using testing::ElementsAre;

TEST(Published, TellsTheComingValueBeforeItChanges) {
    Published<int> field(1);
    std::vector<std::pair<int, int>> seen; // coming, present
    const auto subscription = field.observe([&](int coming) { seen.emplace_back(coming, field.get()); });
    field = 2;
    field = 3;
    EXPECT_THAT(seen, ElementsAre(std::pair(2, 1), std::pair(3, 2)));
    EXPECT_EQ(field, 3);
}

TEST(Published, TellsAlsoOfAnEqualValue) {
    Published<std::string> field("same");
    int calls = 0;
    const auto subscription = field.observe([&](const std::string&) { ++calls; });
    field = "same";
    EXPECT_EQ(calls, 1);
}

TEST(Published, CallsObserversInTheOrderOfTheirSubscription) {
    Published<int> field(0);
    std::string order;
    const auto first = field.observe([&](int) { order += 'a'; });
    const auto second = field.observe([&](int) { order += 'b'; });
    field = 1;
    EXPECT_EQ(order, "ab");
}

TEST(Published, ChangesInPlaceAndTellsTheWholeComingValue) {
    Published<std::vector<int>> field(std::vector{1});
    field.change([](auto& list) { list.push_back(2); });
    EXPECT_THAT(field.get(), ElementsAre(1, 2));

    std::vector<int> told;
    const auto subscription = field.observe([&](const std::vector<int>& coming) {
        told = coming;
        EXPECT_THAT(field.get(), ElementsAre(1, 2));
    });
    field.change([](auto& list) { list.push_back(3); });
    EXPECT_THAT(told, ElementsAre(1, 2, 3));
    EXPECT_THAT(field.get(), ElementsAre(1, 2, 3));
}

TEST(Subscription, EndsWithItsOwner) {
    Published<int> field(0);
    int calls = 0;
    {
        const auto subscription = field.observe([&](int) { ++calls; });
        field = 1;
    }
    field = 2;
    EXPECT_EQ(calls, 1);
}

TEST(Subscription, OutlivesTheFieldWithoutHarm) {
    Subscription subscription;
    {
        Published<int> field(0);
        subscription = field.observe([](int) {});
    }
    subscription.end();
    subscription.end();
}

TEST(Subscription, MovesWithItsOwner) {
    Published<int> field(0);
    int first = 0;
    int second = 0;
    auto one = field.observe([&](int) { ++first; });
    auto other = field.observe([&](int) { ++second; });
    one = std::move(other); // ends the first
    const Subscription last(std::move(one));
    field = 1;
    EXPECT_EQ(first, 0);
    EXPECT_EQ(second, 1);
}

TEST(Published, KeepsItsValueWhereAnObserverThrows) {
    Published<int> field(0);
    auto subscription = field.observe([](int) { throw std::bad_alloc(); });
    EXPECT_THROW(field = 1, std::bad_alloc);
    EXPECT_EQ(field, 0);
    const auto kept = std::make_shared<int>();
    auto other = field.observe([kept](int) {});
    subscription.end();
    other.end();
    EXPECT_EQ(kept.use_count(), 1);
    field = 2;
    EXPECT_EQ(field, 2);
}

TEST(Subscription, MayEndWhileItsObserverIsCalled) {
    Published<int> field(0);
    int calls = 0;
    Subscription own;
    Subscription next;
    own = field.observe([&](int) {
        ++calls;
        own.end();
        next.end();
    });
    next = field.observe([&](int) { calls += 100; });
    field = 1;
    field = 2;
    EXPECT_EQ(calls, 1);
}

TEST(Published, AnObserverMaySubscribeOthersWhichHearOfTheNextChange) {
    Published<int> field(0);
    std::vector<Subscription> more;
    int heard = 0;
    const auto subscription = field.observe([&](int) {
        for (int i = 0; i < 100; ++i) { // enough to make the list of observers move
            more.push_back(field.observe([&](int) { ++heard; }));
        }
    });
    field = 1;
    EXPECT_EQ(heard, 0);
    field = 2;
    EXPECT_EQ(heard, 100);
}

TEST(Published, AnObserverMayAssignTheSameField) {
    Published<int> field(0);
    std::vector<int> heard;
    const auto subscription = field.observe([&](int coming) {
        heard.push_back(coming);
        if (coming == 1) {
            field = 5;
        }
    });
    field = 1;
    EXPECT_THAT(heard, ElementsAre(1, 5));
    EXPECT_EQ(field, 1); // the outer assignment is finished last
}

} // namespace
} // namespace quelby
