// The built program in a session whose bus takes connections and answers nobody.

#include <gmock/gmock.h>

#include "app/linux/support/silent_bus.h"
#include "app/linux/support/tray_program.h"
#include "history/history_file.h"
#include "history/support/tables.h"

namespace quelby {
namespace {

class HangingBus : public TrayProgramTest {
protected:
    void startBesideIt(const std::vector<std::string>& more = {}) {
        auto variables = environment();
        variables["DBUS_SESSION_BUS_ADDRESS"] = silent.address();
        program.emplace(words(more), variables);
    }

    [[nodiscard]] std::int64_t rowsOfHangingBus() const {
        const auto file = historyFile(folder.path());
        return std::filesystem::exists(file) ? Database(file).number("SELECT COUNT(*) FROM sqlite_schema")
                                             : 0;
    }

    SilentBus silent;
};

TEST_F(HangingBus, KeepsNobodyFromTheDashboardNorFromTheHistory) {
    startBesideIt();
    static_cast<void>(opened()); // an ordinary window, as there is no tray without a bus
    EXPECT_GT(rowsOfHangingBus(), 0);
    expectCleanEnd();
}

TEST_F(HangingBus, DoesNotKeepTheRecorderFromItsWork) {
    startBesideIt({"--headless", "--fast"});
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(program->line().empty());
    }
    EXPECT_EQ(program->end().exitStatus, 0);
}

} // namespace
} // namespace quelby
