#include "monitor/battery_prediction.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/assignments.h"

namespace quelby {
namespace {

using testing::ElementsAre;

constexpr Date start = 1'700'000'000;

BatteryRecord recordOf(std::vector<BatterySample> samples) {
    return {{samples.begin(), samples.end()}, samples.back().time};
}

class BatteryPredictionTest : public testing::Test {
protected:
    void predict(const BatteryRecord& record) { predictBattery(record, fields); }

    // The samples' ends and one in between that must not matter.
    void predict(Int first, Int last, double seconds, Int now) {
        fields.batteryPercent = now;
        predict(recordOf({{start, first}, {start + 1, 99}, {start + seconds, last}}));
    }

    PublishedFields fields;
};

TEST(BatterySamples, AreTakenAtOnceAndThenEveryThirtySeconds) {
    BatteryRecord record;
    sampleBattery(record, start, 80);
    sampleBattery(record, start + 29.9, 79);
    EXPECT_THAT(record.batterySamples, ElementsAre(BatterySample{start, 80}));
    sampleBattery(record, start + 30.0, 78);
    EXPECT_THAT(record.batterySamples,
                ElementsAre(BatterySample{start, 80}, BatterySample{start + 30.0, 78}));
    EXPECT_EQ(record.lastSampleTime, start + 30.0);
}

TEST(BatterySamples, AreTwentyAtTheMost) {
    BatteryRecord record;
    for (int i = 0; i < 21; ++i) {
        sampleBattery(record, start + i * 30.0, i);
    }
    ASSERT_EQ(record.batterySamples.size(), 20U);
    EXPECT_EQ(record.batterySamples.front(), (BatterySample{start + 30.0, 1}));
    EXPECT_EQ(record.batterySamples.back(), (BatterySample{start + 600.0, 20}));
}

TEST(BatterySamples, PauseWhileTheClockIsBehindTheLastOne) {
    BatteryRecord record;
    sampleBattery(record, start, 80);
    sampleBattery(record, start - 3600, 79);
    EXPECT_EQ(record.batterySamples.size(), 1U);
}

TEST_F(BatteryPredictionTest, CollectsWithFewerThanThreeSamples) {
    fields.batteryRateStr = "old";
    predict(BatteryRecord{});
    EXPECT_EQ(fields.predictedTime.get(), "collecting data...");
    EXPECT_EQ(fields.batteryRateStr.get(), "");
    predict(recordOf({{start, 80}, {start + 30, 70}}));
    EXPECT_EQ(fields.predictedTime.get(), "collecting data...");
}

TEST_F(BatteryPredictionTest, ShowsTheSystemsEstimateMeanwhile) {
    fields.timeRemaining = "2:05";
    predict(recordOf({{start, 80}}));
    EXPECT_EQ(fields.predictedTime.get(), "~2:05 (system)");
    EXPECT_EQ(fields.batteryRateStr.get(), "");
}

TEST_F(BatteryPredictionTest, PredictsTheTimeToEmpty) {
    predict(80, 78, 600, 78);
    EXPECT_EQ(fields.batteryRateStr.get(), "-12.0%/hr");
    EXPECT_EQ(fields.predictedTime.get(), "~6h 30m remaining");
}

TEST_F(BatteryPredictionTest, PredictsTheTimeToFull) {
    predict(50, 55, 600, 55);
    EXPECT_EQ(fields.batteryRateStr.get(), "+30.0%/hr");
    EXPECT_EQ(fields.predictedTime.get(), "~1h 30m to full");
}

TEST_F(BatteryPredictionTest, PredictsDaysWhereTheChargeHardlyMoves) {
    predict(50, 51, 7200, 51); // half a percent an hour
    EXPECT_EQ(fields.predictedTime.get(), "~98h 0m to full");
    predict(51, 50, 7200, 50);
    EXPECT_EQ(fields.predictedTime.get(), "~100h 0m remaining");
}

TEST_F(BatteryPredictionTest, WritesHoursOfZeroAndPadsNothing) {
    predict(90, 97, 180, 97); // 140 %/hr: 1.28 minutes
    EXPECT_EQ(fields.predictedTime.get(), "~0h 1m to full");
    predict(80, 70, 600, 5); // -60 %/hr: 5 minutes
    EXPECT_EQ(fields.predictedTime.get(), "~0h 5m remaining");
    predict(80, 70, 600, 1);
    EXPECT_EQ(fields.predictedTime.get(), "~0h 1m remaining");
}

TEST_F(BatteryPredictionTest, KnowsAFullBatteryWhileTheChargeRises) {
    predict(98, 99, 600, 99);
    EXPECT_EQ(fields.predictedTime.get(), "~0h 10m to full");
    predict(95, 100, 600, 100);
    EXPECT_EQ(fields.batteryRateStr.get(), "+30.0%/hr");
    EXPECT_EQ(fields.predictedTime.get(), "fully charged");
}

TEST_F(BatteryPredictionTest, CallsAnEmptyBatteryVeryLow) {
    predict(5, 0, 600, 0);
    EXPECT_EQ(fields.batteryRateStr.get(), "-30.0%/hr");
    EXPECT_EQ(fields.predictedTime.get(), "very low");
    predict(5, -1, 600, -1);
    EXPECT_EQ(fields.predictedTime.get(), "very low");
}

TEST_F(BatteryPredictionTest, CallsAnUnchangedChargeStable) {
    predict(50, 50, 600, 50);
    EXPECT_EQ(fields.batteryRateStr.get(), "0%/hr");
    EXPECT_EQ(fields.predictedTime.get(), "stable");
}

TEST_F(BatteryPredictionTest, TakesASecondForTheLeastSpan) {
    predict(50, 51, -300, 51); // the clock was set back
    EXPECT_EQ(fields.batteryRateStr.get(), "+3600.0%/hr");
    EXPECT_EQ(fields.predictedTime.get(), "~0h 0m to full");
    predict(50, 51, 0.95, 51);
    EXPECT_EQ(fields.batteryRateStr.get(), "+3600.0%/hr");
    predict(50, 51, 1.05, 51);
    EXPECT_EQ(fields.batteryRateStr.get(), "+3428.6%/hr");
}

TEST_F(BatteryPredictionTest, WritesTheRateFirstWhereThereIsOneAndThePredictionFirstElsewhere) {
    const auto between = [this](Int first, Int last) {
        return assignedDuring(fields, [&] { predict(first, last, 600, last); });
    };
    EXPECT_THAT(assignedDuring(fields, [this] { predict(BatteryRecord{}); }),
                ElementsAre("predictedTime", "batteryRateStr"));
    EXPECT_THAT(between(50, 50), ElementsAre("batteryPercent", "predictedTime", "batteryRateStr"));
    EXPECT_THAT(between(50, 55), ElementsAre("batteryPercent", "batteryRateStr", "predictedTime"));
    EXPECT_THAT(between(55, 50), ElementsAre("batteryPercent", "batteryRateStr", "predictedTime"));
}

class MinutesToLimit : public testing::Test {
protected:
    MinutesToLimit() {
        fields.chargeLimitEnabled = true;
        fields.chargeLimitPercent = 80;
        fields.daemonInstalled = true;
        fields.isCharging = true;
        fields.batteryPercent = 55;
    }

    PublishedFields fields;
    BatteryRecord rising = recordOf({{start, 50}, {start + 300, 53}, {start + 600, 55}}); // 30 % an hour
};

TEST_F(MinutesToLimit, FollowTheSlopeOfThePrediction) {
    EXPECT_EQ(minutesToLimit(rising, fields), 50.0); // 25 % at 30 % an hour
    fields.batteryPercent = 79;
    EXPECT_EQ(minutesToLimit(rising, fields), 2.0);
    fields.batteryPercent = 80;
    EXPECT_EQ(minutesToLimit(rising, fields), std::nullopt);
}

TEST_F(MinutesToLimit, MayBeDays) {
    rising = recordOf({{start, 50}, {start + 300, 50}, {start + 7200, 51}}); // half a percent an hour
    EXPECT_EQ(minutesToLimit(rising, fields), 3000.0);
}

TEST_F(MinutesToLimit, AreNoneWhereChargingWillNotStopThere) {
    fields.chargeLimitEnabled = false;
    EXPECT_EQ(minutesToLimit(rising, fields), std::nullopt);
    fields.chargeLimitEnabled = true;
    fields.daemonInstalled = false;
    EXPECT_EQ(minutesToLimit(rising, fields), std::nullopt);
    fields.daemonInstalled = true;
    fields.isCharging = false;
    EXPECT_EQ(minutesToLimit(rising, fields), std::nullopt);
}

TEST_F(MinutesToLimit, AreNoneWhereTheRecordTellsNoRise) {
    EXPECT_EQ(minutesToLimit({}, fields), std::nullopt);
    EXPECT_EQ(minutesToLimit(recordOf({{start, 50}, {start + 300, 55}}), fields), std::nullopt);
    EXPECT_EQ(minutesToLimit(recordOf({{start, 55}, {start + 1, 55}, {start + 600, 55}}), fields),
              std::nullopt);
    EXPECT_EQ(minutesToLimit(recordOf({{start, 60}, {start + 1, 55}, {start + 600, 55}}), fields),
              std::nullopt);
}

} // namespace
} // namespace quelby
