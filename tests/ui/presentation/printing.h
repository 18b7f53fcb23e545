// How a failed comparison prints the records of the presentation. Tests that compare such records include
// this.
#pragma once

#include <ostream>

#include <gtest/gtest.h>

#include "ui/presentation/elements/color.h"
#include "ui/presentation/elements/record.h"

namespace quelby {

inline void PrintTo(const Color& color, std::ostream* stream) {
    *stream << text(color.name);
    if (color.opacity != 1) {
        *stream << '@' << color.opacity;
    }
}

template <DescribedRecord Record>
void PrintTo(const Record& record, std::ostream* stream) {
    const char* between = "{";
    forEachMember(record, [&](std::string_view name, const auto& member) {
        *stream << between << name << ": " << testing::PrintToString(member);
        between = ", ";
    });
    *stream << '}';
}

} // namespace quelby
