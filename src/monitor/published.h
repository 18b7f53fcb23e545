// A value that tells its observers before it changes.
//
// Every assignment, also of an equal value, first calls the observers with the coming value, in the order in
// which they subscribed, and then changes the value. An observer may subscribe others (they hear of the next
// change), end any subscription, its own included, and assign other values. One thread only.
#pragma once

#include <concepts>
#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace quelby {

class ObserverRegister {
public:
    virtual ~ObserverRegister() = default;
    virtual void remove(std::uint64_t id) = 0;
};

// Observing lasts as long as this object, or as the observed value if that goes first.
class [[nodiscard]] Subscription {
public:
    Subscription() = default;
    Subscription(std::weak_ptr<ObserverRegister> observers, std::uint64_t id);
    Subscription(Subscription&& other) noexcept;
    Subscription& operator=(Subscription&& other) noexcept;
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;
    ~Subscription();

    void end();

private:
    std::weak_ptr<ObserverRegister> observers_;
    std::uint64_t id_ = 0;
};

template <typename T>
class Published {
public:
    using Observer = std::function<void(const T& coming)>;

    explicit Published(T value) : value_(std::move(value)) {}

    // Observers belong to this one object, so it stays where it is.
    Published(const Published&) = delete;
    Published& operator=(const Published&) = delete;
    ~Published() = default;

    [[nodiscard]] const T& get() const { return value_; }

    operator const T&() const { return value_; } // so that a field reads like its value

    Published& operator=(T value) {
        announce(value);
        value_ = std::move(value);
        return *this;
    }

    // One change made in place, without a copy where nobody observes.
    void change(std::invocable<T&> auto&& mutation) {
        if (!observers_) {
            mutation(value_);
            return;
        }
        T coming = value_;
        mutation(coming);
        *this = std::move(coming);
    }

    [[nodiscard]] Subscription observe(Observer observer) {
        if (!observers_) {
            observers_ = std::make_shared<Observers>();
        }
        return {observers_, observers_->add(std::move(observer))};
    }

private:
    class Observers final : public ObserverRegister {
    public:
        std::uint64_t add(Observer observer) {
            entries_.push_back({++lastId_, std::make_shared<Observer>(std::move(observer))});
            return lastId_;
        }

        void remove(std::uint64_t id) override {
            for (auto& entry : entries_) {
                if (entry.id == id) {
                    entry.observer.reset();
                }
            }
            if (calls_ == 0) {
                forgetRemoved();
            }
        }

        void call(const T& coming) {
            const CallUnderWay call(*this);
            const auto count = entries_.size();
            for (std::size_t i = 0; i < count; ++i) {
                // Kept alive here, because it may end its own subscription.
                if (const auto observer = entries_[i].observer) {
                    (*observer)(coming);
                }
            }
        }

    private:
        struct Entry {
            std::uint64_t id;
            std::shared_ptr<Observer> observer; // none once removed
        };

        // Ends also where an observer throws.
        class CallUnderWay {
        public:
            explicit CallUnderWay(Observers& observers) : observers_(observers) { ++observers_.calls_; }

            CallUnderWay(const CallUnderWay&) = delete;
            CallUnderWay& operator=(const CallUnderWay&) = delete;

            ~CallUnderWay() {
                if (--observers_.calls_ == 0) {
                    observers_.forgetRemoved();
                }
            }

        private:
            Observers& observers_;
        };

        void forgetRemoved() {
            std::erase_if(entries_, [](const Entry& entry) { return !entry.observer; });
        }

        std::vector<Entry> entries_;
        std::uint64_t lastId_ = 0;
        int calls_ = 0; // calls under way, one within the other
    };

    void announce(const T& coming) {
        if (const auto observers = observers_) {
            observers->call(coming);
        }
    }

    T value_;
    std::shared_ptr<Observers> observers_; // none until somebody observes
};

} // namespace quelby
