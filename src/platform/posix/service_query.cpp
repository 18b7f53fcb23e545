#include "platform/posix/service_query.h"

#include "platform/helper_names.h"

namespace quelby {

ServiceQuery launchdQuery() {
    return {"/bin/launchctl", {"list", std::string(macos_helper::label)}};
}

ServiceQuery systemdQuery() {
    return {"systemctl", {"is-active", "--quiet", std::string(linux_helper::service)}};
}

} // namespace quelby
