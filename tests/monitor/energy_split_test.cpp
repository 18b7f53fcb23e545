#include "monitor/energy_split.h"

#include <numeric>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quelby {
namespace {

using testing::DoubleEq;
using testing::Pair;
using testing::UnorderedElementsAre;

// Draws 20 W, of which 6 are the processor's.
class EnergySplit : public testing::Test {
protected:
    EnergySplit() {
        fields.totalPower = 20;
        fields.cpuPower = 6;
        fields.gpuPower = 2;
        fields.memPower = 3;
        fields.diskPower = 1.5;
        fields.netPower = 1;
    }

    EnergyByName anHour(std::optional<std::string_view> listing) {
        EnergyByName energy;
        addByApp(energy, listing, fields, 1);
        return energy;
    }

    PublishedFields fields;
};

TEST_F(EnergySplit, GivesEachApplicationItsShareOfTheProcessorsPart) {
    EXPECT_THAT(anHour("%CPU APPLICATION\n30.00 Web Browser\n10.00 editor\n 0.00 idle\n"),
                UnorderedElementsAre(Pair("Web Browser", DoubleEq(4.5)), Pair("editor", DoubleEq(1.5)),
                                     Pair("system", DoubleEq(14))));
}

TEST_F(EnergySplit, GivesAllToTheSystemWhereNothingTellsWhoUsedIt) {
    const auto allSystem = UnorderedElementsAre(Pair("system", DoubleEq(20)));
    EXPECT_THAT(anHour(std::nullopt), allSystem);
    EXPECT_THAT(anHour("%CPU COMM\n"), allSystem);
    EXPECT_THAT(anHour("%CPU COMM\n 0.00 idle\n"), allSystem);
    EXPECT_THAT(anHour("%CPU COMM\n5.0 bro\xFFken\n"), allSystem);
}

TEST_F(EnergySplit, AddsUpOverCyclesAndOverProcessesOfOneName) {
    EnergyByName energy;
    addByApp(energy, "%CPU COMM\n5.0 cc1plus\n5.0 cc1plus\n10.0 ninja\n", fields, 0.5);
    addByApp(energy, "%CPU COMM\n1.0 cc1plus\n", fields, 0.5);
    EXPECT_THAT(energy, UnorderedElementsAre(Pair("cc1plus", DoubleEq(1.5 + 3)), Pair("ninja", DoubleEq(1.5)),
                                             Pair("system", DoubleEq(14))));
}

TEST_F(EnergySplit, KeepsProgramsApartThatAreCalledLikeWhatIsNone) {
    EXPECT_THAT(anHour("%CPU COMM\n1.0 system\n1.0 other\n"),
                UnorderedElementsAre(Pair("system (program)", DoubleEq(3)),
                                     Pair("other (program)", DoubleEq(3)), Pair("system", DoubleEq(14))));
}

TEST_F(EnergySplit, PassesOverLinesWithoutAShareOrAName) {
    EXPECT_THAT(anHour("%CPU COMM\n5.0\nabc editor\n\n-1 negative\n2 real one\n"),
                UnorderedElementsAre(Pair("real one", DoubleEq(6)), Pair("system", DoubleEq(14))));
}

TEST_F(EnergySplit, ByComponentIsTheSameEnergy) {
    EnergyByName energy;
    addByComponent(energy, fields, 2);
    EXPECT_THAT(energy, UnorderedElementsAre(Pair("cpu", 12), Pair("graphics", 4), Pair("memory", 6),
                                             Pair("storage", 3), Pair("network", 2), Pair("rest", 13)));
}

} // namespace
} // namespace quelby
