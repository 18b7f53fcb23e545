#pragma once

namespace quelby {

// The system's manager of services.
class ServiceManager {
public:
    virtual ~ServiceManager() = default;

    // Whether the charge-limit helper is loaded; false also where the manager cannot be asked.
    [[nodiscard]] virtual bool isHelperLoaded() = 0;
};

} // namespace quelby
