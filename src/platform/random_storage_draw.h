#pragma once

#include <random>

#include "platform/storage_draw.h"

namespace quelby {

// Equal seeds give equal draws.
class RandomStorageDraw final : public StorageDraw {
public:
    explicit RandomStorageDraw(std::uint_fast32_t seed) : engine_(seed) {}

    [[nodiscard]] int draw() override { return coin_(engine_); }

private:
    std::mt19937 engine_;
    std::uniform_int_distribution<int> coin_{0, 1};
};

} // namespace quelby
