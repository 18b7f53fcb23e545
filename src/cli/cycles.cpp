#include "cli/cycles.h"

#include <csignal>

#include <QCoreApplication>

#include "cli/signals.h"

namespace quelby::cli {

namespace {

class Run {
public:
    Run(const Machine& machine, const Platform& platform, const Repetition& repetition, AfterCycle afterCycle)
        : machine_(machine)
        , platform_(platform)
        , repetition_(repetition)
        , afterCycle_(std::move(afterCycle))
        , monitor_(PowerMonitor::create(platform, repetition.interval)) {
        monitor_->onUpdate = [this] { cycleDone(); };
    }

    [[nodiscard]] Result<void> untilItEnds() {
        const SignalListener listener({SIGINT, SIGTERM, SIGHUP, SIGQUIT}, [this](int) { end(); });
        monitor_->startMonitoring();
        QCoreApplication::exec();
        monitor_->stopMonitoring();
        return outcome_;
    }

private:
    void cycleDone() {
        if (ended_) {
            return;
        }
        ++cycles_;
        outcome_ = afterCycle_(*monitor_);
        if (!outcome_ || cycles_ == repetition_.count || machine_.hasEnded()) {
            end();
        }
    }

    // Posted, because the first cycle runs before the event loop does.
    void end() {
        ended_ = true;
        platform_.runLoop.post([] { QCoreApplication::quit(); });
    }

    const Machine& machine_;
    Platform platform_;
    Repetition repetition_;
    AfterCycle afterCycle_;
    std::shared_ptr<PowerMonitor> monitor_;
    std::int64_t cycles_ = 0;
    bool ended_ = false;
    Result<void> outcome_;
};

} // namespace

Result<void> runCycles(const Machine& machine, const Platform& platform, const Repetition& repetition,
                       AfterCycle afterCycle) {
    return Run(machine, platform, repetition, std::move(afterCycle)).untilItEnds();
}

Repetition paced(Repetition repetition, Pace pace) {
    if (pace == Pace::withoutWaiting) {
        repetition.interval = std::chrono::seconds(0);
    }
    return repetition;
}

} // namespace quelby::cli
