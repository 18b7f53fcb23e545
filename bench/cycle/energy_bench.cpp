// What it adds to a cycle to tell which application used the energy: the listing of applications, the split
// over all of it, sessions and sleeps, and the minute's write shared out among its cycles. Beside it stand
// the listings that a cycle has anyway, of the same made-up /proc. CPU time, means; the processes have been
// looked at before.
#include <cstdio>
#include <optional>
#include <string>

#include <fmt/format.h>

#include "briefly.h"
#include "cpu_time.h"
#include "history/history_store.h"
#include "monitor/energy_recorder.h"
#include "platform/host/system_clock.h"
#include "platform/linux/processes/fake_proc.h"
#include "platform/linux/processes/proc_process_lister.h"
#include "support/temporary_folder.h"

namespace {

// Three seconds later whenever it is told.
struct CyclingClock final : quelby::Clock {
    quelby::SystemClock system;
    double ahead = 0;

    quelby::Date now() override { return system.now() + ahead; }

    quelby::Date startOfDay() override { return system.startOfDay(); }

    std::optional<quelby::TimeSinceBoot> sinceBoot() override {
        return quelby::TimeSinceBoot{.awake = 1000 + ahead, .asleep = 0};
    }
};

// Processes of which one in so many works. None has a desktop entry, so each name stands for itself, which
// costs most.
class Crowd {
public:
    Crowd(int count, int workingOneIn) : count_(count), workingOneIn_(workingOneIn) {
        proc_.setUptime(1000);
        for (int pid = 1; pid <= count; ++pid) {
            proc_.set({pid, name(pid)});
            proc_.write(pid, "cgroup",
                        fmt::format("0::/user.slice/app.slice/app-maker-{}-1.scope\n", pid / 10));
        }
    }

    void work() {
        ticks_ += 20;
        for (int pid = 1; pid <= count_; pid += workingOneIn_) {
            proc_.set({pid, name(pid), ticks_});
        }
    }

    [[nodiscard]] std::filesystem::path root() const { return proc_.root(); }

private:
    static std::string name(int pid) { return fmt::format("worker-{}", pid); }

    quelby::FakeProc proc_;
    int count_;
    int workingOneIn_;
    std::uint64_t ticks_ = 0;
};

struct Costs {
    double listings = 0;
    double applications = 0;
    double split = 0;
};

Costs costsOf(int count, int workingOneIn, int cycles) {
    Crowd crowd(count, workingOneIn);
    const quelby::TemporaryFolder folder;
    CyclingClock clock;
    quelby::ProcProcessLister lister(crowd.root(), [&] { return quelby::ScanTime{1000 + clock.ahead, 0}; });
    const quelby::HistoryStore history(folder.path(), clock, quelby::HistoryAccess::recording);
    quelby::EnergyRecorder recorder(folder.path(), clock);
    quelby::PublishedFields fields;
    fields.totalPower = 12;
    fields.cpuPower = 6;
    fields.rawMaxCapacity = 4600;
    fields.rawCurrentCapacity = 2300;
    fields.voltage = 12;
    Costs sum;
    for (int i = -5; i < cycles; ++i) { // the first ones look at processes that nobody knows yet
        crowd.work();
        std::optional<std::string> listing;
        const Costs costs{.listings = quelby::costOf([&] {
                              static_cast<void>(lister.cpuListing());
                              static_cast<void>(lister.topListing());
                          }),
                          .applications = quelby::costOf([&] { listing = lister.applicationListing(); }),
                          .split = quelby::costOf([&] { recorder.addCycle(fields, listing); })};
        clock.ahead += 3;
        if (i >= 0) {
            sum = {sum.listings + costs.listings, sum.applications + costs.applications,
                   sum.split + costs.split};
        }
    }
    return {sum.listings / cycles, sum.applications / cycles, sum.split / cycles};
}

} // namespace

int main(int argc, char** argv) {
    const bool brief = quelby::isBrief(argc, argv);
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    fmt::print("{:>9} {:>9} {:>11} {:>15} {:>9} {:>9} {:>11}\n", "processes", "working", "listings ms",
               "applications ms", "split ms", "added ms", "to listings");
    for (const int count : brief ? std::vector{100} : std::vector{100, 500, 2000}) {
        for (const int workingOneIn : {10, 1}) {
            const auto costs = costsOf(count, workingOneIn, brief ? 1 : 200);
            const double added = costs.applications + costs.split;
            fmt::print("{:>9} {:>9} {:>11.3f} {:>15.4f} {:>9.4f} {:>9.4f} {:>11.2f}\n", count,
                       fmt::format("1 in {}", workingOneIn), costs.listings, costs.applications, costs.split,
                       added, added / costs.listings);
        }
    }
}
