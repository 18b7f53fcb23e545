#include "ui/presentation/cards/charge_limit_card.h"

#include <gtest/gtest.h>

#include "ui/presentation/printing.h"

namespace quelby {
namespace {

ChargeLimitCard header(bool enabled, bool helperInstalled) {
    const auto color = enabled && helperInstalled ? ColorName::green : ColorName::secondary;
    return {.symbol = {"bolt.badge.checkmark.fill", color},
            .title = primary("Charge Limit"),
            .enabled = enabled,
            .helperInstalled = helperInstalled,
            .subtitle = secondary("Limit max charge to preserve battery health"),
            .offer = std::nullopt,
            .stopLevel = std::nullopt};
}

HelperOffer offer() {
    return {.explanation = secondary("Charge limit requires a background helper to control charging without "
                                     "repeated password prompts."),
            .installButton = {{"arrow.down.circle.fill", ColorName::white},
                              {"Install Helper (one-time password)", ColorName::white}}};
}

StopLevel stopLevel(double value, const char* limit, Color statusColor, const char* status) {
    return {.stopAt = {secondary("Stop at:"), Text{limit, ColorName::green}},
            .slider = {.value = value, .from = 20, .to = 100, .step = 5},
            .scale = {secondary("20%"), secondary("60%"), secondary("80%"), secondary("100%")},
            .status = {statusColor, {status, statusColor}}};
}

class ChargeLimitCardTest : public testing::Test {
protected:
    ChargeLimitCardTest() {
        fields.daemonInstalled = true;
        fields.chargeLimitEnabled = true;
    }

    PublishedFields fields;
};

TEST(ChargeLimitScale, StandsWhereItsLevelsAreOnTheSlider) {
    std::vector<double> positions;
    for (const auto level : scaleLevels) {
        positions.push_back(positionOnSlider(level));
    }
    EXPECT_EQ(positions, (std::vector{0.0, 0.5, 0.75, 1.0}));
}

TEST_F(ChargeLimitCardTest, TruncatesTheLimitAndLeavesTheSliderWhereItIs) {
    fields.isPluggedIn = true;
    const std::tuple<double, const char*, const char*> expected[] = {
        {20, "20%", "Charging to 20% — MagSafe orange"},
        {79.999, "79%", "Charging to 79% — MagSafe orange"},
        {82.9, "82%", "Charging to 82% — MagSafe orange"},
        {100, "100%", "Charging to 100% — MagSafe orange"},
        {-0.9, "0%", "Charging to 0% — MagSafe orange"}};
    for (const auto& [percent, limit, status] : expected) {
        fields.chargeLimitPercent = percent;
        EXPECT_EQ(chargeLimitCard(fields, macosWords).stopLevel,
                  stopLevel(percent, limit, ColorName::orange, status));
    }
}

// In every state in which limit and helper can be. What is written later outranks what stands before it.
TEST_F(ChargeLimitCardTest, OffersTheHelperOrTellsWhatItIsDoingOrIsOnlyAHeader) {
    fields.chargeLimitPercent = 82.9;
    for (int state = 0; state < 32; ++state) {
        fields.daemonInstalled = (state & 1) != 0;
        fields.chargeLimitEnabled = (state & 2) != 0;
        fields.calibrationActive = (state & 4) != 0;
        fields.chargingInhibited = (state & 8) != 0;
        fields.isPluggedIn = (state & 16) != 0;
        auto expected = header(fields.chargeLimitEnabled, fields.daemonInstalled);
        expected.stopLevel =
            stopLevel(82.9, "82%", ColorName::secondary, "Will activate when charger is connected");
        if (fields.isPluggedIn) {
            expected.stopLevel =
                stopLevel(82.9, "82%", ColorName::orange, "Charging to 82% — MagSafe orange");
        }
        if (fields.chargingInhibited) {
            expected.stopLevel = stopLevel(82.9, "82%", ColorName::green, "Holding at 82% — MagSafe green");
        }
        if (fields.calibrationActive) {
            expected.stopLevel = stopLevel(82.9, "82%", ColorName::blue, "Calibrating — charging to 100%");
        }
        if (!fields.chargeLimitEnabled) {
            expected.stopLevel.reset();
        }
        if (!fields.daemonInstalled) {
            expected.stopLevel.reset();
            expected.offer = offer();
        }
        EXPECT_EQ(chargeLimitCard(fields, macosWords), expected) << state;
    }
}

TEST_F(ChargeLimitCardTest, OffersAnUpdateOfAHelperOfAnotherVersionAboveItsSettings) {
    const auto settings = chargeLimitCard(fields, linuxWords).stopLevel;
    fields.helperOutdated = true;
    const auto card = chargeLimitCard(fields, linuxWords);
    EXPECT_EQ(card.offer,
              (HelperOffer{.explanation = secondary(
                               "The charge helper that is installed is not the one of this version."),
                           .installButton = {{"arrow.down.circle.fill", ColorName::white},
                                             {"Update Helper (one-time password)", ColorName::white}}}));
    EXPECT_EQ(card.stopLevel, settings);
    fields.chargeLimitEnabled = false;
    EXPECT_EQ(chargeLimitCard(fields, linuxWords).offer, card.offer);
    EXPECT_EQ(chargeLimitCard(fields, linuxWords).stopLevel, std::nullopt);
}

TEST_F(ChargeLimitCardTest, SaysNothingOfAPlugThatTheSystemDoesNotHave) {
    fields.isPluggedIn = true;
    EXPECT_EQ(chargeLimitCard(fields, linuxWords).stopLevel->status.text.text, "Charging to 80%");
    fields.chargingInhibited = true;
    EXPECT_EQ(chargeLimitCard(fields, linuxWords).stopLevel->status.text.text, "Holding at 80%");
}

} // namespace
} // namespace quelby
