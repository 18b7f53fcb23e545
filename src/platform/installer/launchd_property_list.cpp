#include "platform/installer/launchd_property_list.h"

#include <fmt/format.h>

#include "platform/helper_names.h"

namespace quelby {

std::string launchdPropertyList() {
    return fmt::format(R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>
    <key>Label</key>
    <string>{}</string>
    <key>ProgramArguments</key>
    <array><string>{}</string></array>
    <key>RunAtLoad</key><true/>
    <key>KeepAlive</key><true/>
</dict>
</plist>
)",
                       macos_helper::label, macos_helper::executable);
}

} // namespace quelby
