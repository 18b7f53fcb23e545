#include "ui/presentation/cards/trend_card.h"

#include <algorithm>
#include <numeric>

#include <fmt/format.h>

namespace quelby {

namespace {

constexpr std::size_t fewestSamples = 3;

} // namespace

std::optional<TrendCard> trendCard(const PublishedFields& fields) {
    const auto& samples = fields.powerHistory.get();
    if (samples.size() < fewestSamples) {
        return std::nullopt;
    }
    const auto [min, max] = std::minmax_element(samples.begin(), samples.end());
    const double mean =
        std::accumulate(samples.begin(), samples.end(), 0.0) / static_cast<double>(samples.size());
    return TrendCard{.symbol = {"waveform.path.ecg", ColorName::primary},
                     .title = primary("Live Power Trend"),
                     .now = secondary(fmt::format("{:.0f}W now", fields.totalPower.get())),
                     .samples = samples,
                     .min = {fmt::format("{:.0f}W min", *min), ColorName::green},
                     .avg = {fmt::format("{:.0f}W avg", mean), ColorName::blue},
                     .max = {fmt::format("{:.0f}W max", *max), ColorName::red}};
}

} // namespace quelby
