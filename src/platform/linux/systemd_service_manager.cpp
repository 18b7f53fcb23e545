#include "platform/linux/systemd_service_manager.h"

#include "platform/posix/child_process.h"

namespace quelby {

bool SystemdServiceManager::isHelperLoaded() {
    return runToTheEnd({"systemctl", "is-active", "--quiet", "com.quelby.limiter.service"}) == 0;
}

} // namespace quelby
