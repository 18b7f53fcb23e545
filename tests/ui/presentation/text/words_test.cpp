#include "ui/presentation/text/words.h"

#include <gtest/gtest.h>

#include "base/version.h"
#include "support/days_from_now.h"
#include "ui/presentation/cards/header.h"
#include "ui/presentation/cards/settings_panel.h"

namespace quelby {
namespace {

TEST(Words, NameTheRowsOfTheMenu) {
    EXPECT_EQ(words::showDashboard, "Show Dashboard");
    EXPECT_EQ(words::settings, "Settings");
    EXPECT_EQ(words::quit, "Quit Quelby");
}

TEST(Words, OfTheMenuAreThoseOfTheDashboard) {
    EXPECT_EQ(words::settings, settingsHeader().title.text);
    EXPECT_EQ(words::quit, quitButton().text.text);
    EXPECT_EQ(words::program, dashboardHeader(0).title.text);
}

TEST(Words, NameTheButtonsOfTheHeader) {
    EXPECT_EQ(words::back, "Back");
    EXPECT_EQ(words::closeSettings, "Close Settings");
}

TEST(Words, NameTheCardOfTheLargeFigure) {
    EXPECT_EQ(words::power, "Power");
}

TEST(Words, OfTheSettingsEndWithTheProgramsVersion) {
    EXPECT_EQ(settingsPanel(PublishedFields(), 0, daysFromNow).version.text,
              "Quelby v" + std::string(shortVersion()));
}

} // namespace
} // namespace quelby
