// What listing the processes costs in one cycle of the monitor, beside a bare scan that opens, reads and
// closes every /proc/PID/stat and makes nothing of it. The two are measured in turn, so that whatever else
// the computer does falls on both; CPU time of this program, medians.
#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <string>
#include <vector>

#include <csignal>
#include <dirent.h>
#include <fcntl.h>
#include <fmt/format.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/linux/processes/proc_process_lister.h"

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

std::size_t cycle(quelby::ProcessLister& lister) {
    const auto cpu = lister.cpuListing();
    const auto top = lister.topListing();
    return cpu && top ? cpu->size() + top->size() : 0;
}

double cpuMilliseconds() {
    struct timespec time = {};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

template <typename Action>
double costOf(const Action& action) {
    const double before = cpuMilliseconds();
    if (action() == 0) {
        std::fputs("/proc cannot be read\n", stderr);
        std::exit(EXIT_FAILURE);
    }
    return cpuMilliseconds() - before;
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void compare(std::size_t count, std::size_t wokenOneIn) {
    constexpr int pairs = 61;
    const Sleepers sleepers(count);
    quelby::ProcProcessLister lister("/proc");
    std::vector<double> bare;
    std::vector<double> listed;
    const double first = costOf([&] { return cycle(lister); });
    for (int i = 0; i < pairs; ++i) {
        bare.push_back(costOf(bareScan));
        sleepers.wakeOneIn(wokenOneIn);
        listed.push_back(costOf([&] { return cycle(lister); }));
    }
    fmt::print("{:>9} {:>10} {:>12.3f} {:>12.3f} {:>12.3f} {:>7.2f}\n", count,
               fmt::format("1 in {}", wokenOneIn), median(bare), median(listed), first,
               median(listed) / median(bare));
}

void ignoreSignal(int) {}

} // namespace

int main() {
    std::signal(SIGUSR1, ignoreSignal);
    fmt::print("{:>9} {:>10} {:>12} {:>12} {:>12} {:>7}\n", "children", "woken", "bare scan ms",
               "listings ms", "first ms", "ratio");
    for (const std::size_t count : {std::size_t{100}, std::size_t{500}, std::size_t{2000}}) {
        for (const std::size_t wokenOneIn : {count, std::size_t{5}, std::size_t{1}}) {
            compare(count, wokenOneIn);
        }
    }
}
