#include "limiter/program/program.h"

#include <cstdio>

#include <unistd.h>

#include "limiter/files/instance_lock.h"
#include "limiter/kernel/rivals.h"
#include "limiter/kernel/sysfs_attributes.h"
#include "limiter/program/readiness.h"
#include "limiter/program/service.h"

namespace quelby::limiter {

namespace {

constexpr const char* stateFile = "state.json";

Result<void> refuseOrdinaryUsers(const Options& options) {
    if (options.isElsewhere || ::geteuid() == 0) {
        return {};
    }
    return problem(
        "only root may set charge levels; it is started as a service, or with --folder and --state");
}

// Where the folder is this program's own, everybody may write there, whatever its mode was before.
void openToEverybody(const Options& options) {
    if (options.folder == Options().folder) {
        if (const auto folder = Folder::openShared(options.folder)) {
            folder->openToEverybody();
        }
    }
}

std::filesystem::path serviceManagerFolder(const Options& options) {
    return options.sysfsRoot == Options().sysfsRoot ? "/run/systemd/units" : "";
}

Surroundings surroundingsFor(const Options& options, SysfsAttributes& attributes, const Folder& state,
                             Wakeups& wakeups) {
    return {.attributes = attributes,
            .pause =
                [&wakeups](std::chrono::milliseconds time) {
                    static_cast<void>(wakeups.wait(std::chrono::duration<double>(time).count(), false));
                },
            .rivals = [&attributes,
                       &options] { return runningRivals(attributes, serviceManagerFolder(options)); },
            .save =
                [&state](const LimiterState& known) {
                    return state.replace(stateFile, encode(known), ownFile, Durability::afterLossOfPower);
                }};
}

Result<void> carryOut(const Options& options, const Time& time) {
    if (auto refused = refuseOrdinaryUsers(options); !refused) {
        return refused;
    }
    const auto state = Folder::openOwn(options.state);
    if (!state) {
        return tl::make_unexpected(state.error());
    }
    const auto lock = InstanceLock::take(*state);
    if (!lock) {
        return tl::make_unexpected(lock.error());
    }
    const auto attributes = SysfsAttributes::open(options.sysfsRoot);
    if (!attributes) {
        return tl::make_unexpected(attributes.error());
    }
    state->removeLeftovers();
    const auto wakeups = time.wakeups();
    Limiter limiter(surroundingsFor(options, **attributes, *state, *wakeups),
                    decodeLimiterState(state->read(stateFile).value_or("")));
    Service service(limiter, options.folder, time.clock, *wakeups);
    switch (options.task) {
    case Task::restore:
        return service.restore();
    case Task::release:
        service.release();
        return {};
    case Task::once:
        openToEverybody(options);
        return service.runOnce();
    case Task::serve:
        break;
    }
    openToEverybody(options);
    return service.run(tellReadiness);
}

} // namespace

int runProgram(const std::vector<std::string>& words, const Time& time) {
    constexpr int couldNotBeDone = 1;
    constexpr int wrongUsage = 2;
    const auto parsed = parseOptions(words);
    if (!parsed) {
        std::fprintf(stderr, "pwr_limiter: %s\n", parsed.error().sentence.c_str());
        return wrongUsage;
    }
    if (const auto* const information = std::get_if<Information>(&*parsed)) {
        return std::fputs(information->text.c_str(), stdout) >= 0 && std::fflush(stdout) == 0
                   ? 0
                   : couldNotBeDone;
    }
    if (const auto done = carryOut(std::get<Options>(*parsed), time); !done) {
        std::fprintf(stderr, "pwr_limiter: %s\n", done.error().sentence.c_str());
        return couldNotBeDone;
    }
    return 0;
}

} // namespace quelby::limiter
