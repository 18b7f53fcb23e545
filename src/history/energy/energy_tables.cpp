#include "history/energy/energy_tables.h"

#include "history/energy/session_kind.h"

namespace quelby::energy_tables {

std::optional<Session> sessionIn(const Statement& row) {
    const auto kind = sessionKind(row.text(0));
    if (!kind) {
        return std::nullopt;
    }
    return Session{.kind = *kind,
                   .start = row.integer(1),
                   .end = row.integer(2),
                   .seconds = row.integer(3),
                   .percentFrom = row.integer(4),
                   .percentTo = row.integer(5),
                   .wattHours = row.number(6)};
}

} // namespace quelby::energy_tables
