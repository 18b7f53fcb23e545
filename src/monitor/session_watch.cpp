#include "monitor/session_watch.h"

#include <utility>

#include "base/arithmetic.h"

namespace quelby {

namespace {

constexpr Int shortestSession = 60;           // seconds
constexpr double longestInterruption = 43200; // seconds, between two recorders

bool goesOn(const Session& last, const SessionWatch::Cycle& cycle) {
    const double interruption = cycle.now - static_cast<double>(last.end);
    const bool fits = last.kind == SessionKind::discharge ? cycle.percent <= last.percentTo
                                                          : cycle.percent >= last.percentTo;
    return cycle.kind == last.kind && fits && interruption >= 0 && interruption <= longestInterruption;
}

Session begun(SessionKind kind, const SessionWatch::Cycle& cycle) {
    const auto now = truncated(cycle.now);
    return {.kind = kind,
            .start = now,
            .end = now,
            .percentFrom = cycle.percent,
            .percentTo = cycle.percent,
            .wattHours = cycle.wattHours};
}

bool isLongEnough(const Session& session) {
    return session.seconds >= shortestSession;
}

} // namespace

bool SessionWatch::follow(const Cycle& cycle) {
    resume(cycle);
    static_cast<void>(follow(
        calibration_, cycle.calibrating ? std::optional(SessionKind::calibration) : std::nullopt, cycle));
    return follow(flow_, cycle.kind, cycle) && cycle.kind == SessionKind::discharge;
}

void SessionWatch::resume(const Cycle& cycle) {
    const auto last = std::exchange(last_, std::nullopt);
    if (last && goesOn(*last, cycle)) {
        const double interruption = cycle.now - static_cast<double>(last->end);
        flow_ = Running{*last, static_cast<double>(last->seconds) + interruption};
    }
}

// Whether one begins.
bool SessionWatch::follow(std::optional<Running>& running, std::optional<SessionKind> kind,
                          const Cycle& cycle) {
    if (running && running->session.kind == kind) {
        goOn(*running, cycle);
        return false;
    }
    end(running);
    if (kind) {
        running = Running{begun(*kind, cycle), 0};
    }
    return kind.has_value();
}

void SessionWatch::goOn(Running& running, const Cycle& cycle) const {
    auto& session = running.session;
    running.seconds += cycle.secondsSince;
    session.end = truncated(cycle.now);
    session.seconds = truncated(running.seconds);
    session.percentTo = cycle.percent;
    session.wattHours += cycle.wattHours;
    const double asleep =
        session.kind == SessionKind::charge ? -cycle.wattHoursAsleep : cycle.wattHoursAsleep;
    session.wattHours += asleep > 0 ? asleep : 0;
}

void SessionWatch::end(std::optional<Running>& running) {
    if (running && isLongEnough(running->session)) {
        ended_.push_back(running->session);
    }
    running.reset();
}

std::vector<Session> SessionWatch::takeChanged() {
    auto changed = std::exchange(ended_, {});
    for (const auto& running : {flow_, calibration_}) {
        if (running && isLongEnough(running->session)) {
            changed.push_back(running->session);
        }
    }
    return changed;
}

std::optional<SessionKind> presentSession(const PublishedFields& fields) {
    if (!fields.hasBattery) {
        return std::nullopt;
    }
    if (!fields.isPluggedIn) {
        return SessionKind::discharge;
    }
    return fields.isCharging ? std::optional(SessionKind::charge) : std::nullopt;
}

} // namespace quelby
