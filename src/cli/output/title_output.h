// The menu bar's symbol and title, for status bars and scripts.
#pragma once

#include <string>

#include "cli/arguments/command_line.h"
#include "monitor/published_fields.h"

namespace quelby::cli {

// One line without its newline.
//
//   plain    the title without its leading blank
//   json     {"symbol", "title"}, the title as it is
//   i3blocks, polybar, tmux
//            the title in the bar's own markup: red where an emptying battery is low in the dashboard's eyes
//   waybar   the object of Waybar's custom modules: "text" and "tooltip" in Pango's markup, "class" (one of
//            discharging, charging, full, plugged-in, no-battery) and "percentage" (the battery's level)
[[nodiscard]] std::string formattedTitle(const PublishedFields& fields, MenuBarDisplay display,
                                         TitleFormat format);

} // namespace quelby::cli
