// The times on battery, of charging, and of calibration, as the cycles show them.
#pragma once

#include <optional>
#include <vector>

#include "history/energy/energy_records.h"
#include "monitor/published_fields.h"

namespace quelby {

class SessionWatch {
public:
    // What one cycle shows.
    struct Cycle {
        std::optional<SessionKind> kind; // discharge or charge; none: neither
        bool calibrating = false;
        Date now = 0;
        double secondsSince = 0; // the cycle before
        Int percent = 0;
        double wattHours = 0; // of this cycle
        double wattHoursAsleep =
            0; // between the cycle before and this one, out of the battery; negative: into it
    };

    // The last session that was kept, if there was any: it goes on where the first cycle shows the same half
    // a day later at the most, with a charge that says that nothing else came in between.
    explicit SessionWatch(std::optional<Session> last) : last_(last) {}

    // Whether a time on battery begins with this cycle.
    [[nodiscard]] bool follow(const Cycle& cycle);

    // Those that have changed since the last call. One that has not lasted a minute yet is none.
    [[nodiscard]] std::vector<Session> takeChanged();

private:
    struct Running {
        Session session;
        double seconds = 0;
    };

    [[nodiscard]] bool follow(std::optional<Running>& running, std::optional<SessionKind> kind,
                              const Cycle& cycle);
    void goOn(Running& running, const Cycle& cycle) const;
    void end(std::optional<Running>& running);
    void resume(const Cycle& cycle);

    std::optional<Session> last_;
    std::optional<Running> flow_;
    std::optional<Running> calibration_;
    std::vector<Session> ended_;
};

// What the battery is doing by itself: nothing where it neither gives nor takes, or is not there.
[[nodiscard]] std::optional<SessionKind> presentSession(const PublishedFields& fields);

} // namespace quelby
