#include "cli/output/title_output.h"

#include <gtest/gtest.h>

#include "ui/presentation/text/menu_bar_title.h"

namespace quelby::cli {
namespace {

class TitleLineTest : public testing::Test {
protected:
    TitleLineTest() {
        fields.batteryPercent = 80;
        fields.totalPower = 12.4;
        fields.cpuUsage = 7.5;
        fields.predictedTime = "~3h 12m remaining";
    }

    PublishedFields fields;
};

TEST_F(TitleLineTest, IsTheBareTitle) {
    EXPECT_EQ(formattedTitle(fields, MenuBarDisplay::watts, TitleFormat::plain), "-12W");
    EXPECT_EQ(formattedTitle(fields, MenuBarDisplay::iconOnly, TitleFormat::plain), "");
}

TEST_F(TitleLineTest, IsSymbolAndTitleAsJson) {
    EXPECT_EQ(formattedTitle(fields, MenuBarDisplay::percentage, TitleFormat::json),
              R"({"symbol":"battery.75percent","title":" 80%"})");
    EXPECT_EQ(formattedTitle(fields, MenuBarDisplay::iconOnly, TitleFormat::json),
              R"({"symbol":"battery.75percent","title":""})");
}

TEST_F(TitleLineTest, IsACustomModuleForWaybar) {
    EXPECT_EQ(formattedTitle(fields, MenuBarDisplay::watts, TitleFormat::waybar),
              R"({"text":"-12W","tooltip":")" + statusBarToolTip(fields) +
                  R"(","class":"discharging","percentage":80})");
    fields.isPluggedIn = true;
    fields.predictedTime = "<&>";
    const auto line = formattedTitle(fields, MenuBarDisplay::temperature, TitleFormat::waybar);
    EXPECT_NE(line.find("&lt;&amp;&gt;"), std::string::npos);
    EXPECT_EQ(line.find("<&>"), std::string::npos);
    EXPECT_NE(line.find(R"("class":"plugged-in")"), std::string::npos);
}

TEST_F(TitleLineTest, IsRedInABarsOwnMarkupWhileAnEmptyingBatteryIsLow) {
    const auto percent = [&](TitleFormat format) {
        return formattedTitle(fields, MenuBarDisplay::percentage, format);
    };
    for (const auto format : {TitleFormat::i3blocks, TitleFormat::polybar, TitleFormat::tmux}) {
        EXPECT_EQ(percent(format), "80%");
    }
    fields.batteryPercent = 5;
    EXPECT_EQ(percent(TitleFormat::i3blocks), R"(<span foreground="#ff5f57">5%</span>)");
    EXPECT_EQ(percent(TitleFormat::polybar), "%{F#ff5f57}5%%{F-}");
    EXPECT_EQ(percent(TitleFormat::tmux), "#[fg=red]5%#[fg=default]");
    fields.isPluggedIn = true;
    EXPECT_EQ(percent(TitleFormat::tmux), "5%");
}

} // namespace
} // namespace quelby::cli
