#include "ui/presentation/cards/process_card.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/presentation/printing.h"

namespace quelby {
namespace {

using testing::IsEmpty;

ProcessRow onlyRow(const ProcessInfo_Energy& process) {
    PublishedFields fields;
    fields.topProcesses = std::vector{process};
    return processCard(fields).rows.at(0);
}

TEST(ProcessCard, IsLoadingWhileThereAreNoProcesses) {
    const ProcessCard expected{.symbol = {"flame.fill", ColorName::primary},
                               .title = primary("Top Processes"),
                               .placeholder = secondary("Loading..."),
                               .rows = {}};
    EXPECT_EQ(processCard({}), expected);
}

TEST(ProcessCard, NumbersTheProcessesInTheOrderOfTheList) {
    PublishedFields fields;
    fields.topProcesses = std::vector<ProcessInfo_Energy>{
        {"editor", 25, 9.6}, {"A Very Long Process Name", 60.04, 0.4}, {"shell", 0, 0}};
    const ProcessCard expected{
        .symbol = {"flame.fill", ColorName::primary},
        .title = primary("Top Processes"),
        .placeholder = std::nullopt,
        .rows = {
            {secondary("1."), primary("editor"), {" 25.0%", ColorName::orange}, secondary("~10W")},
            {secondary("2."), primary("A Very Long Process~"), {" 60.0%", ColorName::red}, secondary("~0W")},
            {secondary("3."), primary("shell"), {"  0.0%", ColorName::green}, secondary("~0W")}}};
    EXPECT_EQ(processCard(fields), expected);
}

TEST(ProcessCard, GivesTwoDigitsToTheTenthProcess) {
    PublishedFields fields;
    fields.topProcesses = std::vector<ProcessInfo_Energy>(10, {"worker", 1, 1});
    EXPECT_EQ(processCard(fields).rows.back().position, secondary("10."));
}

TEST(ProcessCard, ColoursTheShareByItsSize) {
    const std::tuple<double, const char*, ColorName> expected[] = {
        {0, "  0.0%", ColorName::green},
        {5.0, "  5.0%", ColorName::green},
        {5.1, "  5.1%", ColorName::yellow},
        {20.0, " 20.0%", ColorName::yellow},
        {20.1, " 20.1%", ColorName::orange},
        {50.0, " 50.0%", ColorName::orange},
        {50.1, " 50.1%", ColorName::red},
        {100, "100.0%", ColorName::red},
        {1599.96, "1600.0%", ColorName::red},
        {50.04, " 50.0%", ColorName::red}}; // by the share itself, not by what is shown of it
    for (const auto& [share, words, color] : expected) {
        EXPECT_EQ(onlyRow({"process", share, 0}).cpu, (Text{words, color})) << share;
    }
}

TEST(ProcessCard, RoundsHalvesToEven) {
    EXPECT_EQ(onlyRow({"process", 12.25, 0}).cpu.text, " 12.2%");
    EXPECT_EQ(onlyRow({"process", 12.75, 0}).cpu.text, " 12.8%");
    EXPECT_EQ(onlyRow({"process", 0, 0.5}).watts, secondary("~0W"));
    EXPECT_EQ(onlyRow({"process", 0, 1.5}).watts, secondary("~2W"));
}

} // namespace
} // namespace quelby
