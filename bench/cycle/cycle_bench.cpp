// What one whole cycle of the monitor costs on this computer (battery, both listings, all calculations),
// beside a bare scan that opens, reads and closes every /proc/PID/stat and makes nothing of it, and beside
// one refresh of `top -b`. Scan and cycle are measured in turn, so that whatever else the computer does falls
// on both; CPU time, medians.
#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include <csignal>
#include <dirent.h>
#include <fcntl.h>
#include <fmt/format.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "briefly.h"
#include "cpu_time.h"
#include "monitor/power_monitor.h"
#include "platform/host/system_clock.h"
#include "platform/posix/file_descriptor.h"
#include "platform/system.h"
#include "support/fake_platform.h"

namespace {

// Child processes that sleep until they are woken, and then sleep again.
class Sleepers {
public:
    explicit Sleepers(std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            const pid_t pid = ::fork();
            if (pid == 0) {
                sleepForEver();
            }
            if (pid > 0) {
                pids_.push_back(pid);
            }
        }
    }

    Sleepers(const Sleepers&) = delete;
    Sleepers& operator=(const Sleepers&) = delete;
    Sleepers(Sleepers&&) = delete;
    Sleepers& operator=(Sleepers&&) = delete;

    ~Sleepers() {
        for (const pid_t pid : pids_) {
            ::kill(pid, SIGKILL);
        }
        for (const pid_t pid : pids_) {
            ::waitpid(pid, nullptr, 0);
        }
    }

    void wakeOneIn(std::size_t step) const {
        for (std::size_t i = 0; i < pids_.size(); i += step) {
            ::kill(pids_[i], SIGUSR1);
        }
    }

private:
    // The handler comes from the parent, so that no child is without one when it is woken.
    [[noreturn]] static void sleepForEver() {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        for (;;) {
            ::pause();
        }
    }

    std::vector<pid_t> pids_;
};

struct DirectoryCloser {
    void operator()(DIR* directory) const { ::closedir(directory); }
};

std::size_t bareScan() {
    std::size_t bytes = 0;
    const std::unique_ptr<DIR, DirectoryCloser> directory(::opendir("/proc"));
    while (const auto* const entry = ::readdir(directory.get())) {
        if (std::isdigit(static_cast<unsigned char>(entry->d_name[0])) == 0) {
            continue;
        }
        const auto path = fmt::format("/proc/{}/stat", std::string_view(entry->d_name));
        const quelby::FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
        std::array<char, 1024> text;
        const auto length = ::read(file.number(), text.data(), text.size());
        bytes += length > 0 ? static_cast<std::size_t>(length) : 0;
    }
    return bytes;
}

// A monitor on this computer, whose cycles come when they are asked for.
class Cycles {
public:
    std::size_t run() {
        if (started_) {
            rest_.runLoop.fireTimers();
        } else {
            monitor_->startMonitoring();
            started_ = true;
        }
        return monitor_->topProcesses.get().size();
    }

private:
    // Everything that a cycle reads is real; the timer fires when the benchmark says so.
    [[nodiscard]] quelby::Platform platform() {
        auto platform = rest_.platform();
        platform.battery = *readers_.battery;
        platform.processes = *readers_.processes;
        platform.clock = clock_;
        return platform;
    }

    quelby::SystemReaders readers_ = quelby::makeSystemReaders({});
    quelby::SystemClock clock_;
    quelby::fake::Computer rest_;
    std::shared_ptr<quelby::PowerMonitor> monitor_ = quelby::PowerMonitor::create(platform());
    bool started_ = false;
};

// Of what says how many processes it has seen.
template <typename Look>
double costOfLook(const Look& look) {
    std::size_t seen = 0;
    const double cost = quelby::costOf([&] { seen = look(); });
    if (seen == 0) {
        std::fputs("/proc cannot be read\n", stderr);
        std::exit(EXIT_FAILURE);
    }
    return cost;
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double childrenMilliseconds() {
    rusage usage{};
    ::getrusage(RUSAGE_CHILDREN, &usage);
    const auto milliseconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
    };
    return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
}

double costOfTop(int refreshes) {
    const double before = childrenMilliseconds();
    const auto command = fmt::format("top -b -d 0.05 -n {} > /dev/null", refreshes);
    if (std::system(command.c_str()) != 0) {
        std::fputs("top cannot be run\n", stderr);
        std::exit(EXIT_FAILURE);
    }
    return childrenMilliseconds() - before;
}

// Without what its start costs.
double costOfOneTopRefresh() {
    constexpr int refreshes = 20;
    return (costOfTop(refreshes + 1) - costOfTop(1)) / refreshes;
}

void compare(std::size_t count, std::size_t wokenOneIn, int pairs) {
    const double top = [&] {
        const Sleepers sleepers(count);
        return costOfOneTopRefresh();
    }();
    const Sleepers sleepers(count);
    Cycles cycles;
    std::vector<double> scans;
    std::vector<double> wholeCycles;
    const double first = costOfLook([&] { return cycles.run(); });
    for (int i = 0; i < pairs; ++i) {
        scans.push_back(costOfLook(bareScan));
        sleepers.wakeOneIn(wokenOneIn);
        wholeCycles.push_back(costOfLook([&] { return cycles.run(); }));
    }
    const double scan = median(scans);
    const double cycle = median(wholeCycles);
    fmt::print("{:>9} {:>9} {:>11.2f} {:>11.2f} {:>11.2f} {:>11.2f} {:>9.2f} {:>9.2f}\n", count,
               fmt::format("1 in {}", wokenOneIn), cycle, first, scan, top, cycle / scan, cycle / top);
}

void ignoreSignal(int) {}

} // namespace

int main(int argc, char** argv) {
    const bool brief = quelby::isBrief(argc, argv);
    const auto counts = brief ? std::vector<std::size_t>{100} : std::vector<std::size_t>{100, 500, 2000};
    const int pairs = brief ? 1 : 61;
    std::signal(SIGUSR1, ignoreSignal);
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    fmt::print("{:>9} {:>9} {:>11} {:>11} {:>11} {:>11} {:>9} {:>9}\n", "processes", "woken", "cycle ms",
               "first ms", "scan ms", "top -b ms", "to scan", "to top");
    for (const std::size_t count : counts) {
        for (const std::size_t wokenOneIn : {count, std::size_t{5}, std::size_t{1}}) {
            compare(count, wokenOneIn, pairs);
        }
    }
}
