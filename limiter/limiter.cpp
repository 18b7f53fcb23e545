#include "limiter/limiter.h"

#include <algorithm>

#include "limiter/charge_levels.h"
#include "limiter/words/explanation.h"

namespace quelby::limiter {

namespace {

constexpr int nearlyFull = 95; // %, from where on a worn battery may take no more

// A calibration's seconds change all the time; so many of them may be lost with the helper.
constexpr double secondsToLose = 60;

bool isFull(const Battery& battery) {
    return battery.charging == Charging::full || battery.percent.value_or(0) >= fullLevel;
}

bool isStalled(const Battery& battery) {
    return battery.percent.value_or(0) >= nearlyFull && battery.isTakingNone();
}

// Nothing that would be missed after a sudden end.
bool isNearlyTheSame(LimiterState one, LimiterState other) {
    if (one.calibration && other.calibration &&
        other.calibration->heldSeconds - one.calibration->heldSeconds < secondsToLose) {
        one.calibration->heldSeconds = other.calibration->heldSeconds;
        one.calibration->stalledSeconds = other.calibration->stalledSeconds;
    }
    return one == other;
}

} // namespace

Limiter::Limiter(Surroundings surroundings, LimiterState state)
    : surroundings_(std::move(surroundings))
    , state_(std::move(state))
    , saved_(state_)
    , machine_(readMachineFacts(surroundings_.attributes))
    , calibration_(state_.lastCalibration, state_.calibration) {}

RoundOutcome Limiter::round(const Wish& wish, double rememberedCalibration, const RoundMoment& moment) {
    supplies_ = readPowerSupplies(surroundings_.attributes);
    meetBatteries();
    calibrate(wish, rememberedCalibration, moment);
    const auto aim = aimFor(wish);
    takeDownFound(aim);
    keepLevels(aim, moment);
    save();
    hold_.look(allLookHeld(wish), moment.awake);
    lastRound_ = moment.awake;
    return describe(wish, moment);
}

RoundOutcome Limiter::describe(const Wish& wish, const RoundMoment& moment) {
    return {.status = status(moment), .details = details(wish, moment), .isUndecided = hold_.isUndecided()};
}

void Limiter::meetBatteries() {
    const auto& batteries = supplies_.batteries;
    for (auto entry = kept_.begin(); entry != kept_.end();) {
        const bool isThere = std::any_of(batteries.begin(), batteries.end(), [&](const Battery& battery) {
            return battery.name == entry->first;
        });
        entry = isThere ? std::next(entry) : kept_.erase(entry);
    }
    for (const auto& battery : batteries) {
        if (kept_.contains(battery.name)) {
            continue;
        }
        // Asked in every round where there is none: a driver may come later than the battery.
        if (auto mechanism = probe(surroundings_.attributes, supplies_, battery, surroundings_.pause)) {
            kept_.emplace(battery.name, Kept{LevelKeeper(battery.name, std::move(mechanism))});
        }
    }
}

bool Limiter::canLift(double time) const {
    return !kept_.empty() && std::none_of(kept_.begin(), kept_.end(),
                                          [&](const auto& one) { return one.second.keeper.yields(time); });
}

void Limiter::calibrate(const Wish& wish, double rememberedCalibration, const RoundMoment& moment) {
    if (calibration_.last() <= 0 && rememberedCalibration > 0) {
        calibration_ = Calibration(rememberedCalibration, calibration_.progress());
    }
    const auto& batteries = supplies_.batteries;
    // A battery that has just been taken out takes nothing away from what was reached.
    if (!batteries.empty() || !calibration_.isActive()) {
        calibration_.advance({.wanted = wish.limit && wish.calibration && canLift(moment.awake),
                              .intervalDays = wish.intervalDays,
                              .charger = supplies_.externalPower,
                              .full = std::all_of(batteries.begin(), batteries.end(), isFull),
                              .stalled = std::all_of(batteries.begin(), batteries.end(), isStalled),
                              .now = moment.now,
                              .elapsed = lastRound_ ? std::max(0.0, moment.awake - *lastRound_) : 0});
    }
    state_.lastCalibration = calibration_.last();
    state_.calibration = calibration_.progress();
}

Aim Limiter::aimFor(const Wish& wish) const {
    if (!wish.limit) {
        return {.kind = Aim::Kind::restore};
    }
    if (calibration_.isActive()) {
        return {.kind = Aim::Kind::lift};
    }
    return {.kind = Aim::Kind::limit, .percent = wish.percent};
}

// Before anything is written: afterwards nobody would know any more.
void Limiter::takeDownFound(const Aim& aim) {
    if (aim.kind == Aim::Kind::restore) {
        return;
    }
    for (const auto& [name, kept] : kept_) {
        if (!state_.found.contains(name)) {
            state_.found[name] = kept.keeper.mechanism().read();
        }
    }
    save();
}

void Limiter::keepLevels(const Aim& aim, const RoundMoment& moment) {
    for (const auto& battery : supplies_.batteries) {
        const auto entry = kept_.find(battery.name);
        if (entry == kept_.end()) {
            continue;
        }
        auto& [keeper, isNew] = entry->second;
        const bool wasDisturbed = keeper.wasDisturbed();
        if (aim.kind == Aim::Kind::restore && !state_.found.contains(battery.name)) {
            keeper.look(); // nothing was ever changed, or all of it is back
        } else {
            keeper.keep(aim, foundOf(battery.name),
                        {.time = moment.awake,
                         .anew = moment.anew || isNew,
                         .batteryPercent = battery.percent.value_or(0)});
        }
        isNew = false;
        if (keeper.isRestored()) {
            state_.found.erase(battery.name);
        }
        if (keeper.wasDisturbed() && !wasDisturbed) {
            rival_ = surroundings_.rivals();
        }
    }
    if (std::none_of(kept_.begin(), kept_.end(),
                     [](const auto& one) { return one.second.keeper.wasDisturbed(); })) {
        rival_.reset();
    }
}

bool Limiter::allLookHeld(const Wish& wish) const {
    if (!wish.limit || calibration_.isActive() || kept_.empty()) {
        return false;
    }
    return std::all_of(supplies_.batteries.begin(), supplies_.batteries.end(), [&](const Battery& battery) {
        const auto kept = kept_.find(battery.name);
        return kept == kept_.end() ||
               looksHeld(supplies_.externalPower, battery, kept->second.keeper.inForce());
    });
}

DaemonStatus Limiter::status(const RoundMoment& moment) const {
    DaemonStatus status{.daemonRunning = true,
                        .chargingInhibited = hold_.isHeld(),
                        .calibrationActive = calibration_.isActive(),
                        .batteryPercent = supplies_.percent(),
                        .lastUpdate = moment.now};
    if (calibration_.isActive()) {
        status.calibrationPhase = calibration_.phase();
    }
    return status;
}

Details Limiter::details(const Wish& wish, const RoundMoment& moment) {
    Details details{
        .version = QUELBY_VERSION, .lastUpdate = moment.now, .rival = rival_, .lastError = firstError()};
    Situation situation{.hasBattery = !supplies_.batteries.empty(),
                        .limitWanted = wish.limit,
                        .wishedPercent = wish.percent,
                        .error = details.lastError};
    if (calibration_.isActive()) {
        situation.calibrationPhase = calibration_.phase();
    }
    for (const auto& battery : supplies_.batteries) {
        details.batteries.push_back(detailsOf(battery, wish));
        const auto kept = kept_.find(battery.name);
        if (kept == kept_.end()) {
            continue;
        }
        const auto& keeper = kept->second.keeper;
        if (!situation.hasMechanism) {
            situation.hasMechanism = true;
            situation.holdsByItself = keeper.mechanism().holdsByItself();
            situation.inForce = keeper.inForce();
            details.mechanism = keeper.mechanism().name();
        }
        if (keeper.yields(moment.awake)) {
            situation.winner = rival_;
        }
    }
    details.explanation = explanation(situation, machine_);
    return details;
}

BatteryDetails Limiter::detailsOf(const Battery& battery, const Wish& wish) const {
    BatteryDetails details{.name = battery.name};
    const auto kept = kept_.find(battery.name);
    if (kept == kept_.end()) {
        return details;
    }
    const auto& keeper = kept->second.keeper;
    const auto found = state_.found.contains(battery.name) ? foundOf(battery.name) : keeper.setting();
    details.mechanism = keeper.mechanism().name();
    details.wishedPercent = wish.limit ? std::optional(wish.percent) : std::nullopt;
    details.inForcePercent = keeper.inForce().percent;
    details.inForceStartPercent = keeper.setting().start;
    details.foundPercent = keeper.mechanism().levelOf(found, std::nullopt).percent;
    details.foundStartPercent = found.start;
    return details;
}

std::optional<std::string> Limiter::firstError() const {
    for (const auto& [name, kept] : kept_) {
        if (kept.keeper.error()) {
            return kept.keeper.error();
        }
    }
    return savingFailed_ ? std::optional<std::string>("what was found at first could not be taken down")
                         : std::nullopt;
}

Setting Limiter::foundOf(const std::string& battery) const {
    const auto found = state_.found.find(battery);
    return found == state_.found.end() ? Setting{} : found->second;
}

void Limiter::save() {
    if (!saved_ || !isNearlyTheSame(*saved_, state_)) {
        savingFailed_ = !surroundings_.save(state_);
        saved_ = savingFailed_ ? std::nullopt : std::optional(state_);
    }
}

Result<void> Limiter::restore() {
    supplies_ = readPowerSupplies(surroundings_.attributes);
    meetBatteries();
    keepLevels({.kind = Aim::Kind::restore}, {});
    calibration_ = Calibration(state_.lastCalibration, std::nullopt);
    state_.calibration.reset();
    save();
    if (const auto error = firstError()) {
        return problem(*error);
    }
    if (!state_.found.empty()) {
        return problem("the level of " + state_.found.begin()->first +
                       " could not be put back: it is not there");
    }
    return {};
}

void Limiter::letGo() {
    supplies_ = readPowerSupplies(surroundings_.attributes);
    meetBatteries();
    for (auto& [name, kept] : kept_) {
        if (state_.found.contains(name)) {
            kept.keeper.letGo(foundOf(name));
        } else {
            kept.keeper.look();
        }
    }
    if (saved_ != state_) {
        static_cast<void>(surroundings_.save(state_));
    }
}

} // namespace quelby::limiter
