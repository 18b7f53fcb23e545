// A computer made of values that a test sets.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/platform.h"

namespace quelby::fake {

struct Battery final : BatterySource {
    BatteryReading reading = NoBattery{};
    int readings = 0;

    BatteryReading readBattery() override {
        ++readings;
        return reading;
    }
};

struct Processes final : ProcessLister {
    std::optional<std::string> cpu = "%CPU\n";
    std::optional<std::string> top = "%CPU COMM\n";
    std::int64_t processors = 1;

    std::optional<std::string> cpuListing() override { return cpu; }

    std::optional<std::string> topListing() override { return top; }

    std::int64_t logicalProcessors() override { return processors; }
};

struct WallClock final : Clock {
    Date time = 1'700'000'000;

    Date now() override { return time; }

    Date startOfDay() override { return time - 3600; }
};

// Nobody's folder, so that a test which means to keep something says where.
struct NamedFolders final : Folders {
    std::filesystem::path support = "/proc/nowhere";
    std::optional<std::filesystem::path> helperResources;

    std::filesystem::path applicationSupport() override { return support; }

    std::filesystem::path configuration() override { return support / "configuration"; }

    std::filesystem::path helper() override { return support / "helper"; }

    std::optional<std::filesystem::path> resources() override { return helperResources; }

    std::filesystem::path program() override { return support / "quelby"; }
};

struct Helper final : HelperFolder {
    std::optional<std::string> configText;
    std::optional<std::string> statusText;
    std::optional<std::string> detailsText;
    bool saysNothingNew = true; // of details.json
    bool writable = true;
    int writes = 0; // that were tried
    int reads = 0;  // of the config
    std::optional<std::string> lastRead;

    std::optional<std::string> config() override {
        ++reads;
        return lastRead = configText;
    }

    bool configChanged() override { return reads == 0 || lastRead != configText; }

    std::optional<std::string> status() override { return statusText; }

    std::optional<std::string> details() override {
        saysNothingNew = true;
        return detailsText;
    }

    bool detailsChanged() override { return !saysNothingNew; }

    // As a helper does when it is started.
    void sayDetails(std::optional<std::string> text) {
        detailsText = std::move(text);
        saysNothingNew = false;
    }

    Result<void> replaceConfig(std::string_view text) override {
        ++writes;
        if (!writable) {
            return problem("the helper's folder cannot be written to");
        }
        configText = text;
        return {};
    }
};

// With an administrator who agrees, or not.
struct Installer final : HelperInstaller {
    bool loaded = false;
    int questions = 0;
    bool agrees = true;
    std::optional<PackageManager> manager;
    std::vector<std::string> wishes;

    bool isLoaded() override {
        ++questions;
        return loaded;
    }

    std::optional<PackageManager> packageManager() override { return manager; }

    Result<void> install() override { return carryOut("install"); }

    Result<void> uninstall() override { return carryOut("uninstall"); }

    Result<void> uninstallEverything() override { return carryOut("uninstall everything"); }

private:
    Result<void> carryOut(const char* wish) {
        wishes.emplace_back(wish);
        return agrees ? Result<void>() : problem("the administrator did not agree");
    }
};

struct Login final : LoginItem {
    bool works = true;
    std::vector<std::string> wishes;

    bool registerProgram() override {
        wishes.emplace_back("register");
        return works;
    }

    bool unregisterProgram() override {
        wishes.emplace_back("unregister");
        return works;
    }
};

// Timers fire when the test says so.
class Loop final : public RunLoop {
public:
    std::shared_ptr<RepeatingTimer> repeat(std::chrono::duration<double> interval,
                                           std::function<void()> action) override {
        timers_.push_back(std::make_shared<Timer>(interval, std::move(action)));
        return timers_.back();
    }

    void post(std::function<void()> action) override { posted_.push_back(std::move(action)); }

    void fireTimers() {
        for (const auto& timer : std::vector(timers_)) {
            if (timer->running) {
                timer->action();
            }
        }
    }

    void callPosted() {
        for (const auto& action : std::exchange(posted_, {})) {
            action();
        }
    }

    // Of the timers that have not been invalidated.
    [[nodiscard]] std::vector<double> intervals() const {
        std::vector<double> seconds;
        for (const auto& timer : timers_) {
            if (timer->running) {
                seconds.push_back(timer->interval.count());
            }
        }
        return seconds;
    }

private:
    struct Timer final : RepeatingTimer {
        Timer(std::chrono::duration<double> every, std::function<void()> call)
            : interval(every), action(std::move(call)) {}

        void invalidate() override { running = false; }

        std::chrono::duration<double> interval;
        std::function<void()> action;
        bool running = true;
    };

    std::vector<std::shared_ptr<Timer>> timers_;
    std::vector<std::function<void()>> posted_;
};

struct Choices final : Preferences {
    std::map<std::string, std::string, std::less<>> texts;
    std::map<std::string, bool, std::less<>> flags;

    std::optional<std::string> text(std::string_view key) override {
        const auto found = texts.find(key);
        return found == texts.end() ? std::nullopt : std::optional(found->second);
    }

    bool flag(std::string_view key) override {
        const auto found = flags.find(key);
        return found != flags.end() && found->second;
    }

    void setText(std::string_view key, std::string_view value) override {
        ++writes;
        texts.insert_or_assign(std::string(key), std::string(value));
    }

    void setFlag(std::string_view key, bool value) override {
        ++writes;
        flags.insert_or_assign(std::string(key), value);
    }

    void remove(std::string_view key) override {
        texts.erase(std::string(key));
        flags.erase(std::string(key));
    }

    void removeAll() override {
        texts.clear();
        flags.clear();
    }

    int writes = 0;
};

struct Draw final : StorageDraw {
    int next = 0;
    int draws = 0;

    int draw() override {
        ++draws;
        return next;
    }
};

struct Computer {
    Battery battery;
    Processes processes;
    WallClock clock;
    NamedFolders folders;
    Helper helper;
    Installer installer;
    Login login;
    Loop runLoop;
    Choices preferences;
    Draw storageDraw;

    [[nodiscard]] Platform platform() {
        return {.battery = battery,
                .processes = processes,
                .clock = clock,
                .folders = folders,
                .helperFolder = helper,
                .helperInstaller = installer,
                .loginItem = login,
                .runLoop = runLoop,
                .preferences = preferences,
                .storageDraw = storageDraw};
    }
};

} // namespace quelby::fake
