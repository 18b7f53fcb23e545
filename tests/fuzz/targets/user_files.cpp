#include <cmath>

#include "fuzz/targets/target.h"
#include "history/history_store.h"
#include "monitor/preference_keys.h"
#include "platform/qt/qt_preferences.h"
#include "support/temporary_folder.h"

namespace quelby::fuzz {

namespace {

struct StandingClock final : Clock {
    Date now() override { return 1'700'000'000; }

    Date startOfDay() override { return now() - 3600; }
};

} // namespace

void takePreferences(std::string_view bytes) {
    const TemporaryFolder folder(inMemory());
    QtPreferences preferences(folder.write("Quelby.conf", bytes));
    static_cast<void>(preferences.text(preference_keys::menuBarDisplay));
    static_cast<void>(preferences.flag(preference_keys::hasShownChargingTip));
    preferences.setText(preference_keys::menuBarDisplay, "percent");
    require(preferences.text(preference_keys::menuBarDisplay) == "percent", "a choice is kept");
}

void takeHistory(std::string_view bytes) {
    const TemporaryFolder folder(inMemory());
    folder.write("Quelby/history.db", bytes);
    StandingClock clock;
    for (const auto access : {HistoryAccess::readOnly, HistoryAccess::recording}) {
        HistoryStore store(folder.path(), clock, access);
        store.addReading(12, 50, false, 3);
        static_cast<void>(store.loadData(TimeRange::thirtyMinutes));
        static_cast<void>(store.todayWh());
    }
}

} // namespace quelby::fuzz
