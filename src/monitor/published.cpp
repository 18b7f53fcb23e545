#include "monitor/published.h"

namespace quelby {

Subscription::Subscription(std::weak_ptr<ObserverRegister> observers, std::uint64_t id)
    : observers_(std::move(observers)), id_(id) {}

Subscription::Subscription(Subscription&& other) noexcept
    : observers_(std::exchange(other.observers_, {})), id_(other.id_) {}

Subscription& Subscription::operator=(Subscription&& other) noexcept {
    if (this != &other) {
        end();
        observers_ = std::exchange(other.observers_, {});
        id_ = other.id_;
    }
    return *this;
}

Subscription::~Subscription() {
    end();
}

void Subscription::end() {
    if (const auto observers = std::exchange(observers_, {}).lock()) {
        observers->remove(id_);
    }
}

} // namespace quelby
