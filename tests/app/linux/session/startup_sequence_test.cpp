#include "app/linux/session/startup_sequence.h"

#include <gtest/gtest.h>

namespace quelby::app {
namespace {

std::string joined(std::string_view name) {
    std::string text;
    for (const auto& piece : endOfStartup(name)) {
        text.append(piece.begin(), piece.end());
    }
    EXPECT_NE(text.find('\0'), std::string::npos) << name;
    return text.substr(0, text.find('\0'));
}

TEST(StartupSequence, EndsUnderItsName) {
    EXPECT_EQ(joined("gnome-shell/Quelby/1234-0-host_TIME5678"),
              "remove: ID=\"gnome-shell/Quelby/1234-0-host_TIME5678\"");
    EXPECT_EQ(joined(R"(a "quoted" \ name)"), R"(remove: ID="a \"quoted\" \\ name")");
}

TEST(StartupSequence, AlwaysEndsWithAZero) {
    for (std::size_t size = 0; size < 50; ++size) {
        const std::string name(size, 'x');
        EXPECT_EQ(joined(name), "remove: ID=\"" + name + '"');
        EXPECT_EQ(endOfStartup(name).size(), (size + 13) / 20 + 1);
    }
}

} // namespace
} // namespace quelby::app
