// Where the energy went, for people and for programs.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/arguments/command_line.h"
#include "history/energy/energy_records.h"

namespace quelby::cli {

struct EnergyOutput {
    EnergyRange range = EnergyRange::today;
    EnergyGrouping by = EnergyGrouping::app;
    std::optional<double> fullCharge; // Wh; none: no battery to compare with
    std::vector<NamedEnergy> named;   // by application and by component
    std::vector<TimedEnergy> timed;   // by hour and by day
};

//   text   a line for each, with a bar, so many columns wide
//   json   one object on one line
//   csv    a heading, then a line for each
[[nodiscard]] std::string energyInForm(const EnergyOutput& output, OutputForm form, int columns);

} // namespace quelby::cli
