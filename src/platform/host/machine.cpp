#include "platform/host/machine.h"

#include <functional>
#include <map>
#include <random>

#include "platform/host/chosen_folders.h"
#include "platform/host/system_clock.h"
#include "platform/posix/helper_files.h"
#include "platform/qt/qt_preferences.h"
#include "platform/qt/qt_run_loop.h"
#include "platform/random_storage_draw.h"

namespace quelby {

namespace {

// Preferences of a demonstration, which nobody keeps.
class MemoryPreferences final : public Preferences {
public:
    [[nodiscard]] std::optional<std::string> text(std::string_view key) override { return find(texts_, key); }

    [[nodiscard]] bool flag(std::string_view key) override { return find(flags_, key).value_or(false); }

    void setText(std::string_view key, std::string_view value) override {
        texts_.insert_or_assign(std::string(key), value);
    }

    void setFlag(std::string_view key, bool value) override {
        flags_.insert_or_assign(std::string(key), value);
    }

    void remove(std::string_view key) override {
        texts_.erase(std::string(key));
        flags_.erase(std::string(key));
    }

    void removeAll() override {
        texts_.clear();
        flags_.clear();
    }

private:
    template <typename T>
    using ByKey = std::map<std::string, T, std::less<>>;

    template <typename T>
    static std::optional<T> find(const ByKey<T>& values, std::string_view key) {
        const auto found = values.find(key);
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }

    ByKey<std::string> texts_;
    ByKey<bool> flags_;
};

std::unique_ptr<Preferences> makeMemoryPreferences() {
    return std::make_unique<MemoryPreferences>();
}

// In the file, where one is named.
std::unique_ptr<Preferences> preferencesIn(const std::optional<std::filesystem::path>& file,
                                           const std::function<std::unique_ptr<Preferences>()>& makeOthers) {
    return file ? std::make_unique<QtPreferences>(file) : makeOthers();
}

ChosenFolders::Named namedFolders(const MachineOptions& options) {
    return {
        .applicationSupport = options.dataDir, .configuration = std::nullopt, .helper = options.configDir};
}

// What the recorded helper said; where it said nothing, what lies in the folder. Its settings are the other
// way round: those in the folder were named by the user, or chosen while the recording plays.
class RecordedHelper final : public HelperFolder {
public:
    RecordedHelper(const ReplayedMachine& machine, std::filesystem::path folder)
        : machine_(machine), files_(std::move(folder)) {}

    [[nodiscard]] std::optional<std::string> config() override {
        recordedConfig_ = machine_.helperConfig();
        const auto present = files_.config();
        return present ? present : recordedConfig_;
    }

    [[nodiscard]] bool configChanged() override {
        return files_.configChanged() || machine_.helperConfig() != recordedConfig_;
    }

    [[nodiscard]] std::optional<std::string> status() override {
        return machine_.helperStatus() ? machine_.helperStatus() : files_.status();
    }

    // Which version it was is not recorded, and nobody would bring another.
    [[nodiscard]] std::optional<std::string> details() override { return std::nullopt; }

    [[nodiscard]] bool detailsChanged() override { return false; }

    [[nodiscard]] Result<void> replaceConfig(std::string_view text) override {
        return files_.replaceConfig(text);
    }

private:
    const ReplayedMachine& machine_;
    HelperFiles files_;
    std::optional<std::string> recordedConfig_; // of the line that was looked at last
};

class NoLoginItem final : public LoginItem {
public:
    [[nodiscard]] bool registerProgram() override { return false; }

    [[nodiscard]] bool unregisterProgram() override { return false; }
};

class ThisComputer final : public Machine {
public:
    explicit ThisComputer(const MachineOptions& options)
        : readers_(makeSystemReaders(options.roots))
        , folders_(makeSystemFolders(), namedFolders(options))
        , preferences_(
              preferencesIn(options.preferences, [&] { return makeSystemPreferences(options.program); })) {}

    [[nodiscard]] Platform platform() override {
        return {.battery = *readers_.battery,
                .processes = *readers_.processes,
                .clock = clock_,
                .folders = folders_,
                .helperFolder = helper_,
                .helperInstaller = *services_.helperInstaller,
                .loginItem = *services_.loginItem,
                .runLoop = runLoop_,
                .preferences = *preferences_,
                .storageDraw = storageDraw_};
    }

    [[nodiscard]] MachineKind kind() const override { return MachineKind::thisComputer; }

    [[nodiscard]] bool hasEnded() const override { return false; }

private:
    SystemReaders readers_;
    SystemClock clock_;
    ChosenFolders folders_;
    HelperFiles helper_{folders_.helper()};
    SystemServices services_ = makeSystemServices(folders_);
    QtRunLoop runLoop_;
    std::unique_ptr<Preferences> preferences_;
    RandomStorageDraw storageDraw_{std::random_device{}()};
};

class RecordedComputer final : public Machine {
public:
    RecordedComputer(ReplayedMachine machine, const MachineOptions& options)
        : machine_(std::move(machine))
        , folders_(makeSystemFolders(), namedFolders(options))
        , preferences_(preferencesIn(options.preferences, makeMemoryPreferences)) {}

    [[nodiscard]] Platform platform() override {
        return {.battery = machine_,
                .processes = machine_,
                .clock = machine_,
                .folders = folders_,
                .helperFolder = helper_,
                .helperInstaller = machine_,
                .loginItem = loginItem_,
                .runLoop = runLoop_,
                .preferences = *preferences_,
                .storageDraw = machine_};
    }

    [[nodiscard]] MachineKind kind() const override { return MachineKind::recorded; }

    [[nodiscard]] bool hasEnded() const override { return machine_.isAtLastLine(); }

private:
    ReplayedMachine machine_;
    DemonstrationFolders folders_;
    RecordedHelper helper_{machine_, folders_.helper()};
    NoLoginItem loginItem_;
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
