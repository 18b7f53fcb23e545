#pragma once

namespace quelby {

// Opens the place where this desktop keeps the system's own settings of the battery, and does not wait for
// it. A failure is silent, and so is a desktop that is not known.
void openBatterySettings();

} // namespace quelby
