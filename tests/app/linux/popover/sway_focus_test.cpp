#include "app/linux/popover/sway_focus.h"

#include <cstring>

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include "app/linux/support/eventually.h"
#include "platform/posix/file_descriptor.h"
#include "support/temporary_folder.h"

namespace quelby::app {
namespace {

constexpr std::uint32_t windowEvent = 0x80000003;

std::string message(std::uint32_t kind, const std::string& content) {
    const std::uint32_t numbers[] = {static_cast<std::uint32_t>(content.size()), kind};
    return "i3-ipc" + std::string(reinterpret_cast<const char*>(numbers), sizeof(numbers)) + content;
}

// Stands for Sway at the other end of its socket.
class SwayFocusTest : public testing::Test {
protected:
    SwayFocusTest() {
        const auto path = (folder.path() / "sway").string();
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::memcpy(address.sun_path, path.data(), path.size());
        const auto* const general = reinterpret_cast<const sockaddr*>(&address);
        EXPECT_EQ(::bind(listening.number(), general, sizeof(address)), 0);
        EXPECT_EQ(::listen(listening.number(), 1), 0);
        qputenv("SWAYSOCK", path.c_str());
    }

    void TearDown() override { qunsetenv("SWAYSOCK"); }

    void accept() { connection = FileDescriptor(::accept(listening.number(), nullptr, nullptr)); }

    void send(const std::string& text) {
        EXPECT_EQ(::write(connection.number(), text.data(), text.size()), static_cast<ssize_t>(text.size()));
    }

    TemporaryFolder folder;
    FileDescriptor listening{::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)};
    FileDescriptor connection;
    int moves = 0;
};

TEST_F(SwayFocusTest, AsksForWhatBecomesOfWindowsAndWorkspaces) {
    const auto focus = SwayFocus::watch([this] { ++moves; });
    ASSERT_NE(focus, nullptr);
    accept();
    const auto wanted = message(2, R"(["window","workspace"])");
    std::string asked(wanted.size(), ' ');
    EXPECT_EQ(::read(connection.number(), asked.data(), asked.size()), static_cast<ssize_t>(asked.size()));
    EXPECT_EQ(asked, wanted);
}

TEST_F(SwayFocusTest, TellsOfTheFocusAloneHoweverTheMessagesArrive) {
    const auto focus = SwayFocus::watch([this] { ++moves; });
    accept();
    send(message(2, R"({"success": true})") + message(windowEvent, R"({"change": "title"})"));
    const auto moved = message(windowEvent, R"({"change": "focus", "container": {}})");
    send(moved.substr(0, 9));
    QCoreApplication::processEvents();
    EXPECT_EQ(moves, 0);
    send(moved.substr(9));
    EXPECT_TRUE(eventually([this] { return moves == 1; }));
}

TEST_F(SwayFocusTest, MayBeEndedByWhoHearsOfIt) {
    std::unique_ptr<SwayFocus> focus;
    focus = SwayFocus::watch([&] { focus.reset(); });
    accept();
    send(message(windowEvent, R"({"change": "focus"})"));
    EXPECT_TRUE(eventually([&] { return focus == nullptr; }));
}

TEST_F(SwayFocusTest, IsNothingWhereNoSwayAnswers) {
    qputenv("SWAYSOCK", "/nonexistent/sway");
    EXPECT_EQ(SwayFocus::watch([] {}), nullptr);
    qunsetenv("SWAYSOCK");
    EXPECT_EQ(SwayFocus::watch([] {}), nullptr);
}

} // namespace
} // namespace quelby::app
