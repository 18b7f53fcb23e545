#include "limiter/program/service.h"

#include <algorithm>
#include <cmath>

#include "limiter/records/status_text.h"

namespace quelby::limiter {

namespace {

constexpr double jump = 5;           // seconds by which the clocks differ after sleep
constexpr double detailsAge = 60;    // seconds after which details.json is written though nothing changed
constexpr int mostFailures = 3;      // rounds without the folder
constexpr double noWaitNeeded = 1e9; // seconds

bool sayTheSame(Details one, const Details& other) {
    one.lastUpdate = other.lastUpdate;
    return one == other;
}

} // namespace

Service::Service(Limiter& limiter, std::filesystem::path folder, Clock& clock, Wakeups& wakeups)
    : limiter_(limiter), path_(std::move(folder)), clock_(clock), wakeups_(wakeups) {}

bool Service::isThere() const {
    std::error_code ignored;
    return std::filesystem::exists(path_, ignored);
}

bool Service::haveFolder() {
    if (folder_ && !folder_->isGone()) {
        return true;
    }
    folder_.reset();
    auto opened = Folder::openShared(path_);
    if (!opened) {
        return false;
    }
    folder_ = std::move(*opened);
    SharedConfig::recover(*folder_, limiter_.lastCalibration());
    folder_->removeLeftovers();
    wakeups_.watch(*folder_);
    return true;
}

RoundMoment Service::nextMoment() {
    RoundMoment moment{.now = clock_.now(), .awake = clock_.awake(), .anew = true};
    if (last_) {
        const double slept = (moment.now - last_->now) - (moment.awake - last_->awake);
        moment.anew = std::abs(slept) > jump;
    }
    return moment;
}

Wish Service::wish() const {
    return config_.last() ? wishFrom(*config_.last()) : Wish();
}

bool Service::round() {
    const auto moment = nextMoment();
    last_ = moment;
    const bool hasFolder = haveFolder();
    if (hasFolder) {
        config_.read(*folder_);
    }
    const auto& known = config_.last();
    outcome_ = limiter_.round(wish(), known ? credibleCalibration(*known, moment.now) : 0, moment);
    if (!hasFolder) {
        return false;
    }
    config_.correct(*folder_, limiter_.lastCalibration());
    const bool written = write(outcome_);
    isToldAgain_ = wakeups_.forgetFolder();
    return written;
}

bool Service::write(const RoundOutcome& outcome) {
    const bool status =
        folder_->replace("status.json", encode(outcome.status), readableFile, Durability::afterCrash);
    const double age = outcome.details.lastUpdate - written_.lastUpdate;
    if (sayTheSame(outcome.details, written_) && age >= 0 && age < detailsAge) {
        return status;
    }
    const bool details =
        folder_->replace("details.json", encode(outcome.details), readableFile, Durability::afterCrash);
    if (details) {
        written_ = outcome.details;
    }
    return status && details;
}

Wake Service::pause() {
    const double due = clock_.awake() + (outcome_.isUndecided ? HoldWatch::apart : regularRound);
    for (;;) {
        const double time = clock_.awake();
        if (time >= due) {
            return Wake::time;
        }
        const double rest = rate_.wait(time);
        if (isToldAgain_ && rest <= 0) {
            isToldAgain_ = false;
            rate_.react(time);
            return Wake::change;
        }
        const auto wake = wakeups_.wait(std::min(due - time, rest > 0 ? rest : noWaitNeeded), rest <= 0);
        if (wake == Wake::stop) {
            return wake;
        }
        if (wake != Wake::time) {
            rate_.react(clock_.awake());
        }
        if (wake == Wake::change) {
            return wake;
        }
    }
}

Result<void> Service::run(const std::function<void()>& whenReady) {
    int failures = round() ? 0 : 1;
    if (whenReady) {
        whenReady();
    }
    while (pause() != Wake::stop) {
        failures = round() ? 0 : failures + 1;
        if (failures >= mostFailures && !haveFolder()) {
            // Whoever starts it again does so in a place where the folder can be made.
            limiter_.letGo();
            return problem("cannot write to " + path_.string());
        }
    }
    release();
    return {};
}

Result<void> Service::runOnce() {
    bool written = round();
    if (outcome_.isUndecided && wakeups_.wait(HoldWatch::apart, false) != Wake::stop) {
        written = round();
    }
    if (!written) {
        return problem("cannot write to " + path_.string());
    }
    const auto& error = outcome_.details.lastError;
    return error ? problem(*error) : Result<void>();
}

Result<void> Service::restore() {
    auto restored = limiter_.restore();
    sayGoodbye({});
    return restored;
}

void Service::release() {
    if (isThere() && haveFolder()) {
        config_.read(*folder_);
    }
    limiter_.letGo();
    sayGoodbye(wish());
}

// In the files, for whoever still reads them: nobody is at work any more, and this is what holds.
void Service::sayGoodbye(const Wish& wish) {
    if (!isThere() || !haveFolder()) {
        return;
    }
    const auto outcome = limiter_.describe(wish, nextMoment());
    const DaemonStatus status{.batteryPercent = outcome.status.batteryPercent,
                              .lastUpdate = outcome.status.lastUpdate};
    static_cast<void>(folder_->replace("status.json", encode(status), readableFile, Durability::afterCrash));
    static_cast<void>(
        folder_->replace("details.json", encode(outcome.details), readableFile, Durability::afterCrash));
}

} // namespace quelby::limiter
