#include "ui/presentation/cards/component_card.h"

#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/presentation/printing.h"

namespace quelby {
namespace {

ComponentRow row(const char* label, double fraction, ColorName color, const char* figure) {
    return {primary(label), {fraction, color}, primary(figure), std::nullopt};
}

ComponentRow total(double fraction, ColorName color, const char* figure) {
    return {primary("TOTAL"), {fraction, color}, {figure, color}, std::nullopt};
}

TEST(ComponentCard, SplitsTheDrawIntoFiveComponents) {
    PublishedFields fields;
    fields.cpuPower = 10.4;
    fields.gpuPower = 5;
    fields.memPower = 2.5;
    fields.diskPower = 2;
    fields.netPower = 1;
    fields.totalPower = 25;
    fields.cpuUsage = 37.6;
    auto cpu = row("cpu", 0.26, ColorName::red, "10W");
    cpu.detail = secondary("38% load");
    const ComponentCard expected{.title = primary("Component Power"),
                                 .rows = {cpu, row("graphics", 0.25, ColorName::purple, "5W"),
                                          row("memory", 0.25, ColorName::blue, "2W"),
                                          row("storage", 0.4, ColorName::yellow, "2W"),
                                          row("network", 0.2, ColorName::green, "1W")},
                                 .total = total(0.5, ColorName::orange, "25W")};
    EXPECT_EQ(componentCard(fields), expected);
}

TEST(ComponentCard, FillsEachBarAtItsOwnMost) {
    PublishedFields fields;
    fields.cpuPower = 40;
    fields.gpuPower = 20;
    fields.memPower = 10;
    fields.diskPower = 5;
    fields.netPower = 5;
    fields.totalPower = 50;
    const auto card = componentCard(fields);
    for (const auto& component : card.rows) {
        EXPECT_EQ(component.bar.fraction, 1.0) << component.label.text;
    }
    EXPECT_EQ(card.total, total(1.0, ColorName::red, "50W"));
}

TEST(ComponentCard, ShowsTheTrueFigureBesideAFullBar) {
    PublishedFields fields;
    fields.cpuPower = 60;
    fields.netPower = 7;
    fields.totalPower = 130;
    const auto card = componentCard(fields);
    EXPECT_EQ(card.rows.front().bar, (Bar{1.0, ColorName::red}));
    EXPECT_EQ(card.rows.front().figure, primary("60W"));
    EXPECT_EQ(card.rows.back(), row("network", 1.0, ColorName::green, "7W"));
    EXPECT_EQ(card.total, total(1.0, ColorName::red, "130W"));
}

TEST(ComponentCard, ColoursTheTotalByItsSize) {
    const std::tuple<double, double, ColorName, const char*> expected[] = {
        {0, 0, ColorName::green, "0W"},
        {9.75, 0.195, ColorName::green, "10W"},
        {10, 0.2, ColorName::yellow, "10W"},
        {19.75, 0.395, ColorName::yellow, "20W"},
        {20, 0.4, ColorName::orange, "20W"},
        {29.75, 0.595, ColorName::orange, "30W"},
        {30, 0.6, ColorName::red, "30W"},
        {std::numeric_limits<double>::quiet_NaN(), 0, ColorName::red, "nanW"}};
    PublishedFields fields;
    for (const auto& [watts, fraction, color, figure] : expected) {
        fields.totalPower = watts;
        EXPECT_EQ(componentCard(fields).total, total(fraction, color, figure)) << watts;
    }
}

TEST(ComponentCard, RoundsHalvesToEven) {
    PublishedFields fields;
    fields.cpuUsage = 0.5;
    fields.gpuPower = 1.5;
    fields.totalPower = 42.5;
    const auto card = componentCard(fields);
    EXPECT_EQ(card.rows.front().detail, secondary("0% load"));
    EXPECT_EQ(card.rows[1].figure, primary("2W"));
    EXPECT_EQ(card.total.figure.text, "42W");
}

} // namespace
} // namespace quelby
