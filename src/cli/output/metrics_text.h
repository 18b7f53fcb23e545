// The published fields for monitoring systems, in the text form of OpenMetrics 1.0, which Prometheus reads.
#pragma once

#include <string>

#include "monitor/published_fields.h"

namespace quelby::cli {

// One gauge for each field that is a number or a Boolean (as 0 or 1), in base units: watts, volts, amperes, coulombs,
// joules, seconds, Celsius, and ratios of 1 for percentages. The busiest processes are told by their rank alone: their
// names are nobody's concern elsewhere, and would make a new series each. What only a battery can tell is left out where
// there is none, and so is what is no finite number.
//
// The types are those that the older text form of Prometheus knows as well, because node_exporter reads only that.
[[nodiscard]] std::string metricsText(const PublishedFields& fields);

} // namespace quelby::cli
