#include "ui/presentation/cards/component_card.h"

#include <fmt/format.h>

namespace quelby {

namespace {

constexpr double fullTotal = 50; // W

std::string wattsText(double watts) {
    return fmt::format("{:.0f}W", watts);
}

// maxW: the watts at which the bar is full.
ComponentRow componentRow(const char* label, double watts, double maxW, ColorName color,
                          std::optional<Text> detail = std::nullopt) {
    return {primary(label), bar(watts, maxW, color), primary(wattsText(watts)), std::move(detail)};
}

ComponentRow totalRow(double watts) {
    const auto color = Color::power(watts);
    return {primary("TOTAL"), bar(watts, fullTotal, color), {wattsText(watts), color}, std::nullopt};
}

} // namespace

ComponentCard componentCard(const PublishedFields& fields) {
    const auto load = secondary(fmt::format("{:.0f}% load", fields.cpuUsage.get()));
    return {.title = primary("Component Power"),
            .rows = {componentRow("cpu", fields.cpuPower, 40, ColorName::red, load),
                     componentRow("graphics", fields.gpuPower, 20, ColorName::purple),
                     componentRow("memory", fields.memPower, 10, ColorName::blue),
                     componentRow("storage", fields.diskPower, 5, ColorName::yellow),
                     componentRow("network", fields.netPower, 5, ColorName::green)},
            .total = totalRow(fields.totalPower)};
}

} // namespace quelby
