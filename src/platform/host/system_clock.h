#pragma once

#include "platform/clock.h"

namespace quelby {

class SystemClock final : public Clock {
public:
    [[nodiscard]] Date now() override;
    [[nodiscard]] Date startOfDay() override;
};

} // namespace quelby
