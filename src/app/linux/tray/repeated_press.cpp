#include "app/linux/tray/repeated_press.h"

namespace quelby::app {

bool RepeatedPress::isOne(Time now, std::chrono::milliseconds doublePress) {
    const bool repeated = first_ && now - *first_ < doublePress;
    if (!repeated) {
        first_ = now;
    }
    return repeated;
}

} // namespace quelby::app
