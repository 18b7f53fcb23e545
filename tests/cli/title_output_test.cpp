#include "cli/title_output.h"

#include <gtest/gtest.h>

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
    EXPECT_EQ(titleLine(fields, MenuBarDisplay::watts, TitleFormat::plain), "-12W");
    EXPECT_EQ(titleLine(fields, MenuBarDisplay::iconOnly, TitleFormat::plain), "");
}

TEST_F(TitleLineTest, IsSymbolAndTitleAsJson) {
    EXPECT_EQ(titleLine(fields, MenuBarDisplay::percentage, TitleFormat::json),
              R"({"symbol":"battery.75percent","title":" 80%"})");
    EXPECT_EQ(titleLine(fields, MenuBarDisplay::iconOnly, TitleFormat::json),
              R"({"symbol":"battery.75percent","title":""})");
}

TEST_F(TitleLineTest, IsACustomModuleForWaybar) {
    EXPECT_EQ(titleLine(fields, MenuBarDisplay::watts, TitleFormat::waybar),
              R"({"text":"-12W","tooltip":"80 % discharging, ~3h 12m remaining, 12.4 W, CPU 7.5 %",)"
              R"("class":"discharging","percentage":80})");
    fields.isPluggedIn = true;
    fields.predictedTime = "<&>";
    EXPECT_EQ(titleLine(fields, MenuBarDisplay::temperature, TitleFormat::waybar),
              R"({"text":"0.0°C","tooltip":"80 % plugged in, &lt;&amp;&gt;, 12.4 W, CPU 7.5 %",)"
              R"("class":"plugged-in","percentage":80})");
}

} // namespace
} // namespace quelby::cli
