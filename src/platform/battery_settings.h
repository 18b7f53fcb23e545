#pragma once

namespace quelby {

// Opens the place where this desktop keeps the system's own settings of the battery, and does not wait for
// it. On Linux this forks: the desktop's settings program becomes a process of its own, which inherits
// nothing. macOS is asked to open its settings. A failure is silent, and so is a desktop that is not known.
void openBatterySettings();

} // namespace quelby
