#pragma once

#include "platform/clock.h"

namespace quelby {

class SystemClock final : public Clock {
public:
    [[nodiscard]] Date now() override;
    [[nodiscard]] Date startOfDay() override;
    [[nodiscard]] std::optional<TimeSinceBoot> sinceBoot() override;
};

} // namespace quelby
