#pragma once

#include <cstddef>
#include <string_view>
#include <unordered_set>

#include "history/energy/energy_records.h"

namespace quelby {

// The applications of both lists together beyond the `count` that have used most; of equal ones the last by
// name. "system" and "other" are no applications. The names lie in the lists.
[[nodiscard]] std::unordered_set<std::string_view> beyondLargest(std::size_t count, const EnergyByName& known,
                                                                 const EnergyByName& added);

} // namespace quelby
