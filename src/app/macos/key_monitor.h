#pragma once

#include <functional>

#include "app/desktop.h"

namespace quelby::app {

// Every key that is pressed in this application goes through the handler first; one for which it answers true
// goes no further. There is no end to it but the application's.
void addKeyDownMonitor(std::function<bool(const KeyDown&)> handler);

} // namespace quelby::app
