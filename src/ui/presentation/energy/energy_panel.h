// What takes the dashboard's place while a person looks at where the energy went.
#pragma once

#include <optional>

#include "history/energy/energy_reader.h"
#include "monitor/published_fields.h"
#include "ui/presentation/cards/header.h"
#include "ui/presentation/elements/elements.h"

namespace quelby {

#define QUELBY_MEMBERS_OF_EnergyRow(MEMBER)                                                                  \
    MEMBER(part, Text, name)                                                                                 \
    MEMBER(part, Bar, bar) /* relative to the largest */                                                     \
    MEMBER(part, Text, energy)                                                                               \
    MEMBER(part, Text, share) /* of a full charge; empty where there is no battery */

struct EnergyRow {
    QUELBY_RECORD(EnergyRow)
};

#define QUELBY_MEMBERS_OF_EnergyUse(MEMBER)                                                                  \
    MEMBER(part, Symbol, symbol)                                                                             \
    MEMBER(part, Text, title)                                                                                \
    MEMBER(part, Text, total)           /* empty while nothing is recorded */                                \
    MEMBER(list, Choice, ranges)        /* one for each EnergyRange */                                       \
    MEMBER(optional, Text, placeholder) /* in place of the rows, while nothing is recorded */                \
    MEMBER(list, EnergyRow, rows)       /* the largest first */                                              \
    MEMBER(part, Text, footnote)

struct EnergyUse {
    QUELBY_RECORD(EnergyUse)
};

// A sleep or a session.
#define QUELBY_MEMBERS_OF_PastRow(MEMBER)                                                                    \
    MEMBER(part, Text, when)                                                                                 \
    MEMBER(part, Text, what)                                                                                 \
    MEMBER(part, Text, cost)                                                                                 \
    MEMBER(optional, Text, warning)

struct PastRow {
    QUELBY_RECORD(PastRow)
};

#define QUELBY_MEMBERS_OF_PastSection(MEMBER)                                                                \
    MEMBER(part, Symbol, symbol)                                                                             \
    MEMBER(part, Text, title)                                                                                \
    MEMBER(optional, Text, placeholder) /* in place of the rows, while there are none */                     \
    MEMBER(list, PastRow, rows)         /* latest first */

struct PastSection {
    QUELBY_RECORD(PastSection)
};

// One day of the curve.
struct HealthPoint {
    double day = 0;    // seconds since 1970-01-01 00:00 UTC
    double health = 0; // full charge relative to design, %

    bool operator==(const HealthPoint&) const = default;
};

#define QUELBY_MEMBERS_OF_AgeingSection(MEMBER)                                                              \
    MEMBER(part, Symbol, symbol)                                                                             \
    MEMBER(part, Text, title)                                                                                \
    MEMBER(part, Text, ageing)                                                                               \
    MEMBER(series, HealthPoint, days) /* oldest first */                                                     \
    MEMBER(series, HealthPoint, line) /* its two ends; none with too few days */

struct AgeingSection {
    QUELBY_RECORD(AgeingSection)
};

#define QUELBY_MEMBERS_OF_EnergyPanel(MEMBER)                                                                \
    MEMBER(part, Header, header)                                                                             \
    MEMBER(optional, Label, limit) /* how long until charging stops; none where it will not */               \
    MEMBER(part, EnergyUse, use)                                                                             \
    MEMBER(optional, PastSection, sleeps) /* none on a machine without a battery, as are the next two */     \
    MEMBER(optional, PastSection, sessions)                                                                  \
    MEMBER(optional, AgeingSection, ageing)

struct EnergyPanel {
    QUELBY_RECORD(EnergyPanel)
};

// `minutesToLimit`: until charging stops, where it will.
[[nodiscard]] EnergyPanel energyPanel(const EnergyReport& report, const PublishedFields& fields,
                                      std::optional<double> minutesToLimit);

} // namespace quelby
