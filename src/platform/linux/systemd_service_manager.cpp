#include "platform/linux/systemd_service_manager.h"

#include "platform/posix/child_process.h"
#include "platform/posix/service_query.h"

namespace quelby {

bool SystemdServiceManager::isHelperLoaded() {
    const auto query = systemdQuery();
    auto words = query.arguments;
    words.insert(words.begin(), query.program);
    return runToTheEnd(words) == 0;
}

} // namespace quelby
