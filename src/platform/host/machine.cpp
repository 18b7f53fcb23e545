#include "platform/host/machine.h"

#include <random>

#include "platform/posix/system_clock.h"
#include "platform/qt/qt_preferences.h"
#include "platform/qt/qt_run_loop.h"
#include "platform/random_storage_draw.h"
#include "platform/replay/replayed_machine.h"

namespace quelby {

namespace {

class NoPreferences final : public Preferences {
public:
    [[nodiscard]] std::optional<std::string> text(std::string_view) override { return std::nullopt; }

    [[nodiscard]] bool flag(std::string_view) override { return false; }
};

class ThisComputer final : public Machine {
public:
    explicit ThisComputer(const MachineOptions& options)
        : readers_(makeSystemReaders(options.roots)), preferences_(options.preferences) {}

    [[nodiscard]] Platform platform() override {
        return {*readers_.battery, *readers_.processes, clock_, runLoop_, preferences_, storageDraw_};
    }

    [[nodiscard]] MachineKind kind() const override { return MachineKind::thisComputer; }

    [[nodiscard]] bool hasEnded() const override { return false; }

private:
    SystemReaders readers_;
    SystemClock clock_;
    QtRunLoop runLoop_;
    QtPreferences preferences_;
    RandomStorageDraw storageDraw_{std::random_device{}()};
};

class RecordedComputer final : public Machine {
public:
    RecordedComputer(ReplayedMachine machine, std::unique_ptr<Preferences> preferences)
        : machine_(std::move(machine)), preferences_(std::move(preferences)) {}

    [[nodiscard]] Platform platform() override {
        return {machine_, machine_, machine_, runLoop_, *preferences_, machine_};
    }

    [[nodiscard]] MachineKind kind() const override { return MachineKind::recorded; }

    [[nodiscard]] bool hasEnded() const override { return machine_.isAtLastLine(); }

private:
    ReplayedMachine machine_;
    QtRunLoop runLoop_;
    std::unique_ptr<Preferences> preferences_;
};

std::unique_ptr<Preferences> preferencesForReplay(const MachineOptions& options) {
    if (options.preferences) {
        return std::make_unique<QtPreferences>(options.preferences);
    }
    return std::make_unique<NoPreferences>();
}

} // namespace

Result<std::unique_ptr<Machine>> Machine::make(const MachineOptions& options) {
    if (!options.replay) {
        return std::make_unique<ThisComputer>(options);
    }
    auto machine = ReplayedMachine::open(*options.replay);
    if (!machine) {
        return tl::make_unexpected(machine.error());
    }
    return std::make_unique<RecordedComputer>(std::move(*machine), preferencesForReplay(options));
}

} // namespace quelby
