#include "platform/host/machine.h"

#include <random>

#include "platform/host/temporary_folder.h"
#include "platform/posix/system_clock.h"
#include "platform/qt/qt_preferences.h"
#include "platform/qt/qt_run_loop.h"
#include "platform/random_storage_draw.h"

namespace quelby {

namespace {

namespace fs = std::filesystem;

class NoPreferences final : public Preferences {
public:
    [[nodiscard]] std::optional<std::string> text(std::string_view) override { return std::nullopt; }

    [[nodiscard]] bool flag(std::string_view) override { return false; }
};

class NamedFolders final : public Folders {
public:
    explicit NamedFolders(const fs::path& applicationSupport)
        : applicationSupport_(fs::absolute(applicationSupport)) {}

    [[nodiscard]] fs::path applicationSupport() override { return applicationSupport_; }

private:
    fs::path applicationSupport_;
};

class TemporaryFolders final : public Folders {
public:
    [[nodiscard]] fs::path applicationSupport() override { return folder_.path(); }

private:
    TemporaryFolder folder_;
};

class ThisComputer final : public Machine {
public:
    explicit ThisComputer(const MachineOptions& options)
        : readers_(makeSystemReaders(options.roots))
        , folders_(makeFolders(options))
        , preferences_(options.preferences) {}

    [[nodiscard]] Platform platform() override {
        return {*readers_.battery, *readers_.processes, clock_,      *folders_,
                runLoop_,          preferences_,        storageDraw_};
    }

    [[nodiscard]] MachineKind kind() const override { return MachineKind::thisComputer; }

    [[nodiscard]] bool hasEnded() const override { return false; }

private:
    static std::unique_ptr<Folders> makeFolders(const MachineOptions& options) {
        return options.dataDir ? std::make_unique<NamedFolders>(*options.dataDir) : makeSystemFolders();
    }

    SystemReaders readers_;
    SystemClock clock_;
    std::unique_ptr<Folders> folders_;
    QtRunLoop runLoop_;
    QtPreferences preferences_;
    RandomStorageDraw storageDraw_{std::random_device{}()};
};

class RecordedComputer final : public Machine {
public:
    RecordedComputer(ReplayedMachine machine, const MachineOptions& options)
        : machine_(std::move(machine))
        , folders_(makeFolders(options))
        , preferences_(makePreferences(options)) {}

    [[nodiscard]] Platform platform() override {
        return {machine_, machine_, machine_, *folders_, runLoop_, *preferences_, machine_};
    }

    [[nodiscard]] MachineKind kind() const override { return MachineKind::recorded; }

    [[nodiscard]] bool hasEnded() const override { return machine_.isAtLastLine(); }

private:
    static std::unique_ptr<Folders> makeFolders(const MachineOptions& options) {
        if (options.dataDir) {
            return std::make_unique<NamedFolders>(*options.dataDir);
        }
        return std::make_unique<TemporaryFolders>();
    }

    static std::unique_ptr<Preferences> makePreferences(const MachineOptions& options) {
        if (options.preferences) {
            return std::make_unique<QtPreferences>(options.preferences);
        }
        return std::make_unique<NoPreferences>();
    }

    ReplayedMachine machine_;
    std::unique_ptr<Folders> folders_;
    QtRunLoop runLoop_;
    std::unique_ptr<Preferences> preferences_;
};

} // namespace

Result<std::unique_ptr<Machine>> Machine::make(const MachineOptions& options) {
    if (!options.replay) {
        return std::make_unique<ThisComputer>(options);
    }
    auto machine = ReplayedMachine::open(*options.replay, options.afterLastLine);
    if (!machine) {
        return tl::make_unexpected(machine.error());
    }
    return std::make_unique<RecordedComputer>(std::move(*machine), options);
}

} // namespace quelby
