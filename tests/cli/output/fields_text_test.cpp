#include "cli/output/fields_text.h"

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quelby::cli {
namespace {

using testing::HasSubstr;

TEST(FieldsAsText, HaveALineForEachFieldWithItsUnit) {
    PublishedFields fields;
    fields.batteryPercent = 50;
    fields.amperage = -1350;
    fields.isCharging = true;
    const auto text = fieldsAsText(fields);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 47);
    EXPECT_THAT(text, HasSubstr("batteryPercent          50 %\n"));
    EXPECT_THAT(text, HasSubstr("amperage                -1350.00 mA\n"));
    EXPECT_THAT(text, HasSubstr("isCharging              yes\n"));
    EXPECT_THAT(text, HasSubstr("topProcesses            none\n"));
    EXPECT_THAT(text, HasSubstr("lastCalibrationDate     never\n"));
    EXPECT_THAT(text, HasSubstr("chargeLimitStatus       -\n"));
}

TEST(FieldsAsText, ListTheProcesses) {
    PublishedFields fields;
    fields.topProcesses = std::vector<ProcessInfo_Energy>{{"edi\x1B[2Jtor", 25.0, 5.0}, {"b", 1.0, 0.2}};
    EXPECT_THAT(fieldsAsText(fields), HasSubstr("topProcesses            \n"
                                                "      25.0 %    5.00 W  edi?[2Jtor\n"
                                                "       1.0 %    0.20 W  b\n"));
}

TEST(FieldsAsText, SumUpTheLongLists) {
    PublishedFields fields;
    fields.powerHistory = std::vector<double>{1.0, 2.5};
    EXPECT_THAT(fieldsAsText(fields), HasSubstr("historyData             none\n"));
    fields.historyData = std::vector<HistoryDataPoint>{{1, 3.0}};
    const auto text = fieldsAsText(fields);
    EXPECT_THAT(text, HasSubstr("powerHistory            2.50 W, the last of 2\n"));
    EXPECT_THAT(text, HasSubstr("historyData             3.00 W, the last of 1\n"));
}

} // namespace
} // namespace quelby::cli
