// A monitor over the real readers, whose every single request for memory within a cycle finds none, one after
// the other.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "base/version.h"
#include "history/history_store.h"
#include "monitor/power_monitor.h"
#include "monitor/support/scarce_memory.h"
#include "platform/linux/battery/fake_sysfs.h"
#include "platform/linux/battery/sysfs_battery_source.h"
#include "platform/linux/processes/fake_proc.h"
#include "platform/linux/processes/proc_process_lister.h"
#include "platform/posix/helper_files.h"
#include "support/fake_platform.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

using testing::IsEmpty;

constexpr double secondsToTheNextAggregation = 61; // so that each of these cycles does all that there is

// What the readers read, which changes with each cycle in all that takes memory.
struct Surroundings {
    Surroundings() {
        sysfs.plug("BAT0", {{"type", "Battery"},
                            {"status", "Discharging"},
                            {"energy_now", "25000000"},
                            {"energy_full", "50000000"},
                            {"energy_full_design", "55000000"},
                            {"power_now", "10000000"},
                            {"voltage_now", "10000000"},
                            {"temp", "305"}});
        sysfs.plug("AC", {{"type", "Mains"}, {"online", "0"}});
    }

    void pass(double seconds) {
        ++cycle;
        time += seconds;
        proc.setUptime(time);
        for (pid_t pid = 1; pid <= 4; ++pid) {
            const auto used = time * static_cast<double>(::sysconf(_SC_CLK_TCK)) / 10;
            proc.set({pid, fmt::format("worker-{}-{}", pid, cycle % 7), static_cast<std::uint64_t>(used)});
        }
        folder.write("helper/config.json",
                     fmt::format(R"({{"chargeLimitEnabled":true,"chargeLimitPercent":{},)"
                                 R"("calibrationEnabled":false,"calibrationIntervalDays":30,)"
                                 R"("lastCalibrationTimestamp":0}})",
                                 20 + cycle % 80));
        folder.write("helper/status.json",
                     fmt::format(R"({{"chargingInhibited":{},"calibrationActive":true,"calibrationPhase":)"
                                 R"("charging to a full battery","daemonRunning":true,"batteryPercent":50,)"
                                 R"("lastUpdate":1}})",
                                 cycle % 2 == 0));
        folder.write("helper/details.json",
                     fmt::format(R"({{"version":"{}"}})", cycle % 4 < 2 ? version() : "another"));
    }

    TemporaryFolder folder{inMemory()};
    fake::Sysfs sysfs;
    FakeProc proc;
    int cycle = 0;
    double time = 1000; // since the start of the computer
};

// Asks for no memory of its own to call the one timer that there is.
class TimerLoop final : public RunLoop {
public:
    std::shared_ptr<RepeatingTimer> repeat(std::chrono::duration<double> /*interval*/,
                                           std::function<void()> action) override {
        action_ = std::move(action);
        return std::make_shared<Timer>();
    }

    void post(std::function<void()> action) override { posted_.push_back(std::move(action)); }

    void fire() const { action_(); }

    void callPosted() {
        for (const auto& action : std::exchange(posted_, {})) {
            action();
        }
    }

private:
    struct Timer final : RepeatingTimer {
        void invalidate() override {}
    };

    std::function<void()> action_;
    std::vector<std::function<void()>> posted_;
};

// A computer in these surroundings, and its monitor.
class Watched {
public:
    Watched(const Surroundings& surroundings, const std::string& name, std::optional<HistoryAccess> history)
        : around_(surroundings)
        , folder_(surroundings.folder.path() / name)
        , battery_(surroundings.sysfs.root())
        , processes_(surroundings.proc.root(),
                     [this] {
                         return ScanTime{around_.time, around_.time};
                     })
        , helper_(surroundings.folder.path() / "helper") {
        computer_.folders.support = folder_;
        auto platform = computer_.platform();
        platform.battery = battery_;
        platform.processes = processes_;
        platform.helperFolder = helper_;
        platform.runLoop = loop_;
        monitor_ = PowerMonitor::create(platform, {.history = history, .renewsShownHistory = true});
        monitor_->onUpdate = [this] { loop_.post([this] { ++updates; }); };
        observing_ = monitor_->topProcesses.observe([this](const auto& coming) { observed_ = coming; });
        setClock();
        monitor_->startMonitoring();
        loop_.callPosted();
    }

    void cycle() {
        setClock();
        loop_.fire();
    }

    [[nodiscard]] PowerMonitor& monitor() { return *monitor_; }

    void callPosted() { loop_.callPosted(); }

    // By somebody else's connection, who sees only what was committed.
    [[nodiscard]] bool hasRecordedThisCycle() {
        HistoryStore reader(folder_, computer_.clock, HistoryAccess::readOnly);
        const auto points = reader.loadData(TimeRange::oneHour).points;
        return !points.empty() && points.back().id == static_cast<std::int64_t>(computer_.clock.time);
    }

    int updates = 0;

private:
    void setClock() { computer_.clock.time = 1'700'000'000 + around_.time; }

    const Surroundings& around_;
    std::filesystem::path folder_;
    SysfsBatterySource battery_;
    ProcProcessLister processes_;
    HelperFiles helper_;
    TimerLoop loop_;
    fake::Computer computer_;
    std::shared_ptr<PowerMonitor> monitor_;
    std::vector<ProcessInfo_Energy> observed_;
    Subscription observing_;
};

// What tells of the past, of which a step that was left out is a part.
bool tellsOfThePast(std::string_view field) {
    return field == "powerHistory" || field.starts_with("history") || field == "todayWh" ||
           field == "predictedTime" || field == "batteryRateStr";
}

// Calls visit(name, value of one, value of the other) for each field.
template <typename Visitor>
void forBoth(const PublishedFields& some, const PublishedFields& others, const Visitor& visit) {
#define QUELBY_VISIT_BOTH(type, name, value, unit) visit(#name, some.name.get(), others.name.get());
    QUELBY_PUBLISHED_FIELDS(QUELBY_VISIT_BOTH)
#undef QUELBY_VISIT_BOTH
}

// Values of the fields, kept.
struct Kept : PublishedFields {
    explicit Kept(const PublishedFields& fields) {
#define QUELBY_KEEP(type, name, value, unit) name = fields.name.get();
        QUELBY_PUBLISHED_FIELDS(QUELBY_KEEP)
#undef QUELBY_KEEP
    }
};

class MemoryShortage : public testing::Test {
protected:
    // Fails one request after the other, each in a cycle of its own, up to the last one that a cycle makes; of
    // the many that are SQLite's, one in so many. Gives the number of the last one.
    static std::size_t failRequests(Whose whose, Shortage shortage, std::size_t stride) {
        std::size_t failing = 1;
        while (failSomeRequests(whose, shortage, stride, failing) && !HasFailure()) {
        }
        return failing;
    }

    // On a history that begins anew, because a long one takes its time. Whether there are more.
    static bool failSomeRequests(Whose whose, Shortage shortage, std::size_t stride, std::size_t& failing) {
        Surroundings surroundings;
        surroundings.pass(secondsToTheNextAggregation);
        Watched scarce(surroundings, "scarce", HistoryAccess::recording);
        Watched plain(surroundings, "plain", std::nullopt);
        for (int round = 0; round < 50; ++round, failing += stride) {
            SCOPED_TRACE(testing::Message() << "request " << failing);
            const Kept before(scarce.monitor());
            surroundings.pass(secondsToTheNextAggregation);
            plain.cycle();
            {
                const ScarceMemory memory(failing, whose, shortage);
                scarce.cycle();
                if (memory.requests() < failing) {
                    return false;
                }
            }
            expectOldOrNew(before, scarce.monitor(), plain.monitor());
            surroundings.pass(3);
            plain.cycle();
            scarce.cycle();
            expectAsPlain(scarce, plain);
            plain.callPosted();
            scarce.callPosted();
            EXPECT_GT(scarce.updates, round); // one for each cycle that had its memory, at least
        }
        return true;
    }

    static void expectOldOrNew(const PublishedFields& before, const PublishedFields& now,
                               const PublishedFields& coming) {
        std::vector<std::string> neither;
        forBoth(now, before, [&](std::string_view name, const auto& value, const auto& old) {
            if (!(value == old) && !tellsOfThePast(name)) {
                neither.emplace_back(name);
            }
        });
        forBoth(now, coming, [&](std::string_view name, const auto& value, const auto& other) {
            if (value == other) {
                std::erase(neither, name);
            }
        });
        EXPECT_THAT(neither, IsEmpty());
        EXPECT_LE(now.powerHistory.get().size(), 61U);
    }

    // With the next cycle all is well.
    static void expectAsPlain(Watched& scarce, Watched& plain) {
        forBoth(scarce.monitor(), plain.monitor(),
                [&](std::string_view name, const auto& value, const auto& other) {
                    EXPECT_TRUE(value == other || tellsOfThePast(name)) << name;
                });
        EXPECT_EQ(scarce.monitor().helperOutdated, plain.monitor().helperOutdated);
        EXPECT_EQ(scarce.monitor().topProcesses.get().size(), 4U);
        EXPECT_TRUE(scarce.hasRecordedThisCycle());
    }
};

TEST_F(MemoryShortage, OfOneRequestCostsAtMostTheStepThatMadeIt) {
    EXPECT_GT(failRequests(Whose::cpps, Shortage::once, 1), 100U);
}

TEST_F(MemoryShortage, OfTheDatabaseCostsAtMostItsReading) {
    EXPECT_GT(failRequests(Whose::sqlites, Shortage::once, 17), 100U);
}

TEST_F(MemoryShortage, ThatLastsToTheEndOfACycleKeepsTheLastValues) {
    EXPECT_GT(failRequests(Whose::everybodys, Shortage::fromThenOn, 19), 100U);
}

TEST_F(MemoryShortage, LeavesNoMemoryBehind) {
    static_cast<void>(
        failRequests(Whose::everybodys, Shortage::once, 97)); // what is kept for good is there then
    const auto before = livingPieces();
    static_cast<void>(failRequests(Whose::everybodys, Shortage::once, 23));
    EXPECT_EQ(livingPieces(), before);
}

} // namespace
} // namespace quelby
