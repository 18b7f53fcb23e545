// What is known of the battery's sleeps, sessions and days, for people and for programs.
#pragma once

#include <string>
#include <vector>

#include "cli/arguments/command_line.h"
#include "history/energy/energy_records.h"

namespace quelby::cli {

//   text   a line for each, and a sentence where there is none
//   json   one object on one line
//   csv    a heading, then a line for each
[[nodiscard]] std::string sleepsInForm(const std::vector<Sleep>& sleeps, OutputForm form);
[[nodiscard]] std::string sessionsInForm(const std::vector<Session>& sessions, OutputForm form);
[[nodiscard]] std::string healthInForm(const std::vector<BatteryDay>& days, OutputForm form);

} // namespace quelby::cli
