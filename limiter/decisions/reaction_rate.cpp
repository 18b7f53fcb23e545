#include "limiter/decisions/reaction_rate.h"

#include <algorithm>

namespace quelby::limiter {

double ReactionRate::spentAt(double time) const {
    return std::max(0.0, spent_ - std::max(0.0, time - since_) / recovery);
}

double ReactionRate::wait(double time) const {
    constexpr double rounding = 1e-6;
    const double rest = (spentAt(time) - (burst - 1)) * recovery;
    return rest > rounding ? rest : 0;
}

void ReactionRate::react(double time) {
    spent_ = spentAt(time) + 1;
    since_ = time;
}

} // namespace quelby::limiter
