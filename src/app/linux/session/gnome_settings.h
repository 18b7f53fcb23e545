#pragma once

#include "app/linux/session/dconf_file.h"
#include "app/linux/session/desktop_settings.h"

namespace quelby::app {

// What GNOME's own settings say, in the words of the portal, which hands them out where it is running.
[[nodiscard]] PortalSettings gnomeSettings(const DconfValues& values);

} // namespace quelby::app
