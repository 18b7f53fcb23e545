#include "app/macos/key_monitor.h"

#include <gmock/gmock.h>

#include "macos/doubles/app_kit.h"
#include "macos/doubles/frameworks.h"

namespace quelby::app {
namespace {

class KeyMonitorTest : public testing::Test {
protected:
    KeyMonitorTest() { fake::startAnew(); }

    ~KeyMonitorTest() override { fake::startAnew(); }
};

TEST_F(KeyMonitorTest, PassesAnEventOrSwallowsItAsTheHandlerSays) {
    std::vector<KeyDown> keys;
    addKeyDownMonitor([&](const KeyDown& key) {
        keys.push_back(key);
        return key.command && key.characters == "q";
    });
    EXPECT_FALSE(fake::keyComesThrough("q", true));
    EXPECT_TRUE(fake::keyComesThrough("q", false));
    EXPECT_TRUE(fake::keyComesThrough("Q", true));
    EXPECT_TRUE(fake::keyComesThrough("w", true));
    EXPECT_TRUE(fake::keyComesThrough("", true));
    EXPECT_TRUE(fake::keyComesThrough("ö", false));
    ASSERT_EQ(keys.size(), 6U);
    EXPECT_TRUE(keys[0].command);
    EXPECT_FALSE(keys[1].command);
    EXPECT_EQ(keys[5].characters, "ö");
}

TEST_F(KeyMonitorTest, StaysWhenWhoeverMadeTheHandlerIsGone) {
    auto calls = std::make_shared<int>(0);
    {
        const std::function<bool(const KeyDown&)> handler = [weak = std::weak_ptr(calls)](const KeyDown&) {
            if (const auto count = weak.lock()) {
                ++*count;
                return true;
            }
            return false;
        };
        addKeyDownMonitor(handler);
    }
    EXPECT_FALSE(fake::keyComesThrough("a", false));
    EXPECT_EQ(*calls, 1);
    calls.reset();
    EXPECT_TRUE(fake::keyComesThrough("a", false));
}

TEST_F(KeyMonitorTest, LeavesNothingBehindButItself) {
    const auto held = std::make_shared<int>(0);
    EXPECT_EQ(fake::objectsLeftBy([held] {
                  addKeyDownMonitor([held](const KeyDown&) { return false; });
                  static_cast<void>(fake::keyComesThrough("q", true));
              }),
              0);
    EXPECT_GT(held.use_count(), 1);
    fake::startAnew();
    EXPECT_EQ(held.use_count(), 1);
}

} // namespace
} // namespace quelby::app
