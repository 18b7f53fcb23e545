#pragma once

#include "platform/service_manager.h"

namespace quelby {

class SystemdServiceManager final : public ServiceManager {
public:
    [[nodiscard]] bool isHelperLoaded() override;
};

} // namespace quelby
