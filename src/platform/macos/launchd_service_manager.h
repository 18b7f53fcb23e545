#pragma once

#include "platform/posix/service_query.h"
#include "platform/service_manager.h"

namespace quelby {

class LaunchdServiceManager final : public ServiceManager {
public:
    explicit LaunchdServiceManager(ServiceQuery query = launchdQuery());

    [[nodiscard]] bool isHelperLoaded() override;

private:
    ServiceQuery query_;
};

} // namespace quelby
