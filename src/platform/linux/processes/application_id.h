// Which application a process belongs to, as the desktops of the freedesktop.org tell it: they start each
// application in a control group of its own, whose unit is called app[-LAUNCHER]-APPLICATION-RANDOM.scope,
// or app[-LAUNCHER]-APPLICATION[@RANDOM].service where the service manager starts it. APPLICATION is the
// name of the desktop entry without ".desktop", with everything but letters, digits, ":", "_" and "." as
// \xHH.
#pragma once

#include <string>
#include <string_view>

namespace quelby {

// From the text of /proc/PID/cgroup: the application of the innermost unit that is one. Empty for all other
// processes.
[[nodiscard]] std::string applicationId(std::string_view cgroups);

// The name for people in the text of a desktop entry, in the language that the entry is written in. Empty
// where there is none.
[[nodiscard]] std::string_view desktopEntryName(std::string_view entry);

} // namespace quelby
