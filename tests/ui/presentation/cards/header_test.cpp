#include "ui/presentation/cards/header.h"

#include <gtest/gtest.h>

#include "support/time_zone.h"
#include "ui/presentation/printing.h"

namespace quelby {
namespace {

TEST(Header, OfTheDashboardNamesTheProgramAndTheTime) {
    const TimeZone zone("EST5");
    const Header expected{.symbol = {"bolt.fill", ColorName::yellow},
                          .title = primary("Quelby"),
                          .clock = secondary("17:13:20"),
                          .toggle = {"gearshape", ColorName::secondary}};
    EXPECT_EQ(dashboardHeader(1'700'000'000), expected);
}

TEST(Header, OfTheSettingsLeadsBackAndHasNoClock) {
    const Header expected{.symbol = {"chevron.left", ColorName::primary},
                          .title = primary("Settings"),
                          .clock = std::nullopt,
                          .toggle = {"xmark.circle", ColorName::secondary}};
    EXPECT_EQ(settingsHeader(), expected);
}

TEST(Header, OfTheEnergyLeadsBackLikeThatOfTheSettings) {
    auto expected = settingsHeader();
    expected.title = primary("Energy");
    EXPECT_EQ(energyHeader(), expected);
}

TEST(QuitButton, SaysWhatItQuits) {
    EXPECT_EQ(quitButton(), (Label{{"xmark.circle", ColorName::secondary}, secondary("Quit Quelby")}));
}

} // namespace
} // namespace quelby
