#include "limiter/mechanisms/thresholds.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "limiter/charge_levels.h"
#include "limiter/mechanisms/choices.h"
#include "limiter/mechanisms/values.h"

namespace quelby::limiter {

namespace {

const std::string custom = "Custom";

bool isRefused(std::error_code failure) {
    return failure == std::errc::invalid_argument || failure == std::errc::result_out_of_range;
}

} // namespace

Thresholds::Thresholds(Attributes& attributes, std::string folder)
    : attributes_(attributes)
    , folder_(std::move(folder))
    , end_(folder_ + "/charge_control_end_threshold")
    , start_(folder_ + "/charge_control_start_threshold") {}

bool Thresholds::arePresent(const Attributes& attributes, const std::string& folder) {
    return attributes.exists(folder + "/charge_control_end_threshold");
}

std::optional<Thresholds::ModeAttribute> Thresholds::modeAttribute() const {
    const auto types = folder_ + "/charge_types";
    if (const auto listed = attributes_.read(types); listed && readChoices(*listed).offer(custom)) {
        return ModeAttribute{types, true};
    }
    const auto type = folder_ + "/charge_type";
    if (!attributes_.exists(types) && attributes_.exists(type)) {
        return ModeAttribute{type, false};
    }
    return std::nullopt;
}

Setting Thresholds::read() const {
    Setting setting;
    setting.end = percentIn(attributes_, end_);
    if (setting.end == 0) {
        setting.end = fullLevel; // nothing stops at an empty battery: the driver means that there is no limit
    }
    setting.start = percentIn(attributes_, start_);
    if (setting.start && setting.end && *setting.start >= *setting.end) {
        setting.start.reset(); // some firmware tells anything here
    }
    if (const auto mode = modeAttribute()) {
        const auto text = attributes_.read(mode->path).value_or("");
        setting.mode = mode->isNeeded ? readChoices(text).active : std::optional(asChoice(text));
    }
    return setting;
}

Setting Thresholds::limitedTo(int percent, int /*batteryPercent*/) const {
    Setting setting{.end = percent};
    if (const auto ends = percentsIn(attributes_, folder_ + "/charge_control_end_available_thresholds");
        !ends.empty()) {
        setting.end = nearest(ends, percent);
    }
    if (attributes_.exists(start_)) {
        setting.start = std::max(*setting.end - stepToStart, 0);
        const auto starts = percentsIn(attributes_, folder_ + "/charge_control_start_available_thresholds");
        if (!starts.empty()) {
            const auto above = std::upper_bound(starts.begin(), starts.end(), *setting.start);
            setting.start = above == starts.begin() ? starts.front() : *std::prev(above);
        }
    }
    if (modeAttribute()) {
        setting.mode = custom;
    }
    return setting;
}

Setting Thresholds::lifted(const Setting& found) const {
    auto setting = limitedTo(fullLevel, fullLevel);
    if (setting.start) {
        setting.start = fullLevel - 1; // or a battery that is nearly full would stay as it is
    }
    if (found.mode && found.mode != custom) {
        setting.mode = found.mode;
    }
    return setting;
}

Setting Thresholds::restored(const Setting& found) const {
    Setting setting{.end = found.end.value_or(fullLevel), .start = found.start};
    if (modeAttribute()) {
        setting.mode = found.mode;
    }
    if (!setting.start && attributes_.exists(start_)) {
        setting.start = std::max(*setting.end - stepToStart, 0);
    }
    return setting;
}

Result<void> Thresholds::write(const Setting& setting) {
    const bool levelsCount = setting.mode == custom;
    const auto modeBefore = levelsCount ? writeMode(setting) : Result<void>();
    const auto levels = writeLevels(setting);
    const auto modeAfter = levelsCount ? Result<void>() : writeMode(setting);
    if (!levels) {
        return levels;
    }
    return modeBefore ? modeAfter : modeBefore;
}

Result<void> Thresholds::writeMode(const Setting& setting) {
    const auto mode = modeAttribute();
    if (!mode || !setting.mode || read().mode == setting.mode) {
        return {};
    }
    const auto written = writeValue(attributes_, mode->path, *setting.mode);
    // The attribute without a list is often there only to be read.
    return mode->isNeeded ? written : Result<void>();
}

// The start must never be above the end, not even between the two writes, on hardware that looks at it.
Result<void> Thresholds::writeLevels(const Setting& setting) {
    const int end = setting.end.value_or(fullLevel);
    const auto before = read();
    const bool endFirst = !before.end || (setting.start && *setting.start >= *before.end);
    auto startFailure = endFirst ? std::error_code() : writeStart(setting.start);
    auto endFailure = writeEnd(end);
    if (endFirst || (isRefused(startFailure) && !endFailure)) {
        startFailure = writeStart(setting.start);
    }
    if (isRefused(endFailure) && !startFailure) {
        endFailure = writeEnd(end); // the other order was right
    }
    if (isRefused(endFailure)) {
        endFailure = writeAcceptedEnd(end);
    }
    if (endFailure) {
        return tl::make_unexpected(refusal(end_, std::to_string(end), endFailure));
    }
    // Where the start moves the end with it, the end has the last word. A start that cannot be set at all is
    // no reason to complain: the limit holds.
    if (setting.start && !endSettlesAt(end)) {
        static_cast<void>(writeEnd(end));
    }
    return {};
}

std::error_code Thresholds::writeEnd(int percent) {
    return attributes_.write(end_, std::to_string(percent));
}

std::error_code Thresholds::writeStart(std::optional<int> percent) {
    if (!percent) {
        return {};
    }
    auto failure = attributes_.write(start_, std::to_string(*percent));
    if (isRefused(failure) && *percent > fullLevel - stepToStart) {
        failure = attributes_.write(start_, std::to_string(fullLevel - stepToStart));
    }
    return failure;
}

// Hardware with few levels, of which it gives no list: the nearest of those that are known to exist.
std::error_code Thresholds::writeAcceptedEnd(int percent) {
    std::array<int, 8> levels{40, 50, 55, 60, 70, 80, 90, 100};
    std::stable_sort(levels.begin(), levels.end(),
                     [&](int one, int other) { return std::abs(one - percent) < std::abs(other - percent); });
    auto failure = std::make_error_code(std::errc::invalid_argument);
    for (const int level : levels) {
        if (isRefused(failure) && level != percent) {
            failure = writeEnd(level);
        }
    }
    return failure;
}

// Some firmware gives the old value once more before it gives the new one.
bool Thresholds::endSettlesAt(int percent) const {
    return percentIn(attributes_, end_) == percent || percentIn(attributes_, end_) == percent;
}

Level Thresholds::levelOf(const Setting& setting, std::optional<int> /*limit*/) const {
    const auto mode = modeAttribute();
    if (mode && mode->isNeeded && setting.mode && setting.mode != custom) {
        return {.limits = false, .percent = fullLevel};
    }
    return {.limits = setting.end.value_or(fullLevel) < fullLevel, .percent = setting.end};
}

} // namespace quelby::limiter
