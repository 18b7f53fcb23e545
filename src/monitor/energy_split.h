// Where the energy of a cycle went: an estimate, as the split over the components is.
#pragma once

#include <optional>
#include <string_view>

#include "history/energy/energy_records.h"
#include "monitor/published_fields.h"

namespace quelby {

// Watt-hours of `hours` at the present power, added to what each application has used: to each line of the
// listing its part of `cpuPower` by its part of the CPU time of all lines; all else, and what cannot be
// split because there is no listing, to "system". An application that is really called "system" or "other"
// is told apart by what follows its name.
void addByApp(EnergyByName& energy, std::optional<std::string_view> listing, const PublishedFields& fields,
              double hours);

// The same energy by component: "cpu", "graphics", "memory", "storage", "network", and "rest".
void addByComponent(EnergyByName& energy, const PublishedFields& fields, double hours);

} // namespace quelby
