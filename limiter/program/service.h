// The helper at work: a round when something happens and every few seconds, until it is asked to stop.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>

#include "limiter/decisions/reaction_rate.h"
#include "limiter/files/shared_config.h"
#include "limiter/limiter.h"
#include "limiter/program/clock.h"
#include "limiter/program/wakeups.h"

namespace quelby::limiter {

class Service {
public:
    // Seconds between two rounds when nothing happens. status.json is never older than this, and a little.
    static constexpr double regularRound = 8;

    Service(Limiter& limiter, std::filesystem::path folder, Clock& clock, Wakeups& wakeups);

    // Calls back once, after the first round. The problem says that the folder is lost and cannot be had
    // again.
    [[nodiscard]] Result<void> run(const std::function<void()>& whenReady = {});

    // One round, and another one where only that tells whether the battery is held. The problem says what of
    // the wish could not be carried out, or that the folder could not be written to.
    [[nodiscard]] Result<void> runOnce();

    // Puts back what was found at first. The problem says what could not be.
    [[nodiscard]] Result<void> restore();

    // Lets a battery be charged that only a running helper may hold.
    void release();

private:
    // False where the files could not be written.
    [[nodiscard]] bool round();
    [[nodiscard]] bool isThere() const;
    [[nodiscard]] bool haveFolder(); // makes it where it is missing
    [[nodiscard]] RoundMoment nextMoment();
    [[nodiscard]] bool write(const RoundOutcome& outcome);
    [[nodiscard]] Wish wish() const;
    void sayGoodbye(const Wish& wish);

    // What ends the pause before the next round.
    [[nodiscard]] Wake pause();

    Limiter& limiter_;
    std::filesystem::path path_;
    Clock& clock_;
    Wakeups& wakeups_;
    std::optional<Folder> folder_;
    SharedConfig config_;
    ReactionRate rate_;
    std::optional<RoundMoment> last_;
    RoundOutcome outcome_;
    Details written_;          // the details of the last file
    bool isToldAgain_ = false; // somebody wrote config.json during the round
};

} // namespace quelby::limiter
