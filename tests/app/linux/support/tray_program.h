#pragma once

#include <gtest/gtest.h>

#include "app/linux/support/bus_peer.h"
#include "app/linux/support/eventually.h"
#include "app/linux/support/fake_watcher.h"
#include "app/linux/support/x_screen.h"
#include "support/laptop_recording.h"
#include "support/quelbyctl.h"
#include "support/temporary_folder.h"

namespace quelby {

// The built program on a screen and a bus of its own, looking at a recorded laptop.
class TrayProgramTest : public testing::Test {
protected:
    void SetUp() override {
        const auto missing = XScreen::missing();
        ASSERT_FALSE(missing) << *missing << " is not installed";
        screen.emplace();
    }

    [[nodiscard]] std::vector<std::string> words(const std::vector<std::string>& more = {}) const {
        std::vector<std::string> all{quelby,
                                     "--replay",
                                     recording,
                                     "--data-dir",
                                     folder.path().string(),
                                     "--preferences",
                                     folder.path() / "preferences"};
        all.insert(all.end(), more.begin(), more.end());
        return all;
    }

    // On the screen, where there is one.
    [[nodiscard]] Environment environment() const {
        auto all = plainEnvironment();
        all["DISPLAY"] = screen ? screen->display() : "";
        // GCC's leak sanitizer falls over a thread of Qt's that is still on its way out when the program
        // ends.
        all["ASAN_OPTIONS"] =
            qEnvironmentVariable("ASAN_OPTIONS").toStdString() + ":intercept_tls_get_addr=0";
        if (leavesAllStanding) {
            all["ASAN_OPTIONS"] += ":detect_leaks=0";
        }
        all["HOME"] = all["XDG_CACHE_HOME"] = all["XDG_RUNTIME_DIR"] = folder.path();
        return all;
    }

    // Runs the event loop until the condition holds, and fails the test where the program ends before.
    template <typename Condition>
    [[nodiscard]] bool becomes(const Condition& condition) const {
        bool holds = false;
        const bool decided = eventually([&] {
            holds = condition();
            return holds || program->hasEnded();
        });
        EXPECT_TRUE(decided && holds) << "the program's errors: " << program->errors();
        return holds;
    }

    void start(const std::vector<std::string>& more = {}) { program.emplace(words(more), environment()); }

    // With a tray that shows it. The figures are there then.
    void startInTray() {
        watcher.emplace("lxqt-panel");
        start();
        ASSERT_TRUE(becomes([&] { return !watcher->items.empty(); }));
    }

    [[nodiscard]] BusObject item() const {
        return {watcher->items.back(), "/StatusNotifierItem", "org.kde.StatusNotifierItem"};
    }

    void pressItem(QPoint where) {
        EXPECT_EQ(peer.call(item(), "Activate", {where.x(), where.y()}).type(), QDBusMessage::ReplyMessage);
    }

    // The window once it is there and has the keyboard.
    [[nodiscard]] XWindow opened() const {
        XWindow window;
        static_cast<void>(becomes([&] {
            const auto all = screen->windows();
            window = all.empty() ? XWindow() : all.front();
            return all.size() == 1 && screen->hasKeyboard(window);
        }));
        return window;
    }

    [[nodiscard]] bool closed() const {
        return becomes([&] { return screen->windows().empty(); });
    }

    // Ends it as the session does.
    void expectCleanEnd() {
        program->signal(SIGTERM);
        const auto end = program->end();
        EXPECT_EQ(end.exitStatus, 0) << end.errors;
    }

    TemporaryFolder folder;
    std::string quelby = QUELBY_BINARY_DIR "/quelby";
    std::string recording = folder.write("it.jsonl", laptopRecording(100)).string();
    PrivateBus bus;
    BusPeer peer;
    std::optional<XScreen> screen;
    std::optional<FakeWatcher> watcher;
    std::optional<RunningProgram> program;
    bool leavesAllStanding = false; // the program is ended by a library from within
};

} // namespace quelby
