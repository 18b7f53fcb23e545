#include "ui/presentation/cards/charge_limit_card.h"

#include <fmt/format.h>

#include "base/arithmetic.h"

namespace quelby {

namespace {

Text statusText(const PublishedFields& fields, const SystemWords& words) {
    const auto limit = truncated(fields.chargeLimitPercent);
    if (fields.calibrationActive) {
        return {"Calibrating — charging to 100%", ColorName::blue};
    }
    if (fields.chargingInhibited) {
        return {fmt::format("Holding at {}%{}", limit, words.whileHolding), ColorName::green};
    }
    if (fields.isPluggedIn) {
        return {fmt::format("Charging to {}%{}", limit, words.whileCharging), ColorName::orange};
    }
    return secondary("Will activate when charger is connected");
}

std::vector<Text> scale() {
    std::vector<Text> texts;
    texts.reserve(std::size(scaleLevels));
    for (const auto level : scaleLevels) {
        texts.push_back(secondary(fmt::format("{}%", level)));
    }
    return texts;
}

StopLevel stopLevel(const PublishedFields& fields, const SystemWords& words) {
    const auto status = statusText(fields, words);
    const auto limit = truncated(fields.chargeLimitPercent);
    return {.stopAt = {secondary("Stop at:"), Text{fmt::format("{}%", limit), ColorName::green}},
            .slider = {.value = fields.chargeLimitPercent,
                       .from = stopRange.lowest,
                       .to = stopRange.highest,
                       .step = stopRange.step},
            .scale = scale(),
            .status = {status.color, status}};
}

HelperOffer helperOffer() {
    return {.explanation = secondary("Charge limit requires a background helper to control charging without "
                                     "repeated password prompts."),
            .installButton = {{"arrow.down.circle.fill", ColorName::white},
                              {"Install Helper (one-time password)", ColorName::white}}};
}

} // namespace

HelperOffer helperUpdate() {
    return {.explanation = secondary("The charge helper that is installed is not the one of this version."),
            .installButton = {{"arrow.down.circle.fill", ColorName::white},
                              {"Update Helper (one-time password)", ColorName::white}}};
}

ChargeLimitCard chargeLimitCard(const PublishedFields& fields, const SystemWords& words) {
    const bool works = fields.chargeLimitEnabled && fields.daemonInstalled;
    ChargeLimitCard card{
        .symbol = {"bolt.badge.checkmark.fill", works ? ColorName::green : ColorName::secondary},
        .title = primary("Charge Limit"),
        .enabled = fields.chargeLimitEnabled,
        .helperInstalled = fields.daemonInstalled,
        .subtitle = secondary("Limit max charge to preserve battery health")};
    if (!fields.daemonInstalled) {
        card.offer = helperOffer();
    } else if (fields.chargeLimitEnabled) {
        card.stopLevel = stopLevel(fields, words);
    }
    if (fields.helperOutdated) {
        card.offer = helperUpdate();
    }
    return card;
}

} // namespace quelby
