#pragma once

#include "platform/clock.h"

namespace quelby {

class SystemClock final : public Clock {
public:
    [[nodiscard]] double now() override;
    [[nodiscard]] double startOfDay() override;
};

} // namespace quelby
