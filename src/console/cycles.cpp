#include "console/cycles.h"

#include <csignal>

#include <QCoreApplication>

#include "console/signals.h"

namespace quelby {

namespace {

class Runner {
public:
    Runner(const Machine& machine, const Platform& platform, const CycleRun& run)
        : machine_(machine)
        , platform_(platform)
        , run_(run)
        , monitor_(PowerMonitor::create(platform, {.interval = run.interval, .history = run.history})) {
        monitor_->onUpdate = [this] { cycleDone(); };
    }

    [[nodiscard]] Result<void> untilItEnds() {
        const SignalListener listener({SIGINT, SIGTERM, SIGHUP, SIGQUIT}, [this](int) { end(); });
        monitor_->startMonitoring();
        if (ended_) {
            monitor_->stopMonitoring(); // the timer came after the cycle that was the last
        }
        QCoreApplication::exec();
        if (outcome_ && run_.atEnd) {
            outcome_ = run_.atEnd(*monitor_);
        }
        return outcome_;
    }

private:
    void cycleDone() {
        if (ended_) {
            return;
        }
        ++cycles_;
        if (run_.afterCycle) {
            outcome_ = run_.afterCycle(*monitor_);
        }
        if (!outcome_ || cycles_ == run_.count || machine_.hasEnded()) {
            end();
        }
    }

    // Posted, because the first cycle runs before the event loop does. Nothing must come in between: a
    // recording that has ended would be read, and recorded, once more.
    void end() {
        ended_ = true;
        monitor_->stopMonitoring();
        platform_.runLoop->post([] { QCoreApplication::quit(); });
    }

    const Machine& machine_;
    Platform platform_;
    const CycleRun& run_;
    std::shared_ptr<PowerMonitor> monitor_;
    std::int64_t cycles_ = 0;
    bool ended_ = false;
    Result<void> outcome_;
};

} // namespace

Result<void> runCycles(const Machine& machine, const Platform& platform, const CycleRun& run) {
    return Runner(machine, platform, run).untilItEnds();
}

} // namespace quelby
