#include "platform/macos/launchd_service_manager.h"

#include <utility>

#include "platform/posix/child_process.h"

namespace quelby {

LaunchdServiceManager::LaunchdServiceManager(ServiceQuery query) : query_(std::move(query)) {}

bool LaunchdServiceManager::isHelperLoaded() {
    auto words = query_.arguments;
    words.insert(words.begin(), query_.program);
    return runToTheEnd(words) == 0;
}

} // namespace quelby
