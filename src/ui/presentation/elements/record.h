// How a record of the presentation is described: once, by the list of its members. From the list follow the
// record itself, its comparison, and everything that handles each member in turn: JSON, the printing of
// tests, and what QML sees of the record.
//
//     #define QUELBY_MEMBERS_OF_BatteryCard(MEMBER)
//         MEMBER(part, Text, level)
//         MEMBER(optional, Text, note) /* what the reader cannot guess */
//
//     struct BatteryCard {
//         QUELBY_RECORD(BatteryCard)
//     };
//
// The first word of a member says what it holds:
//     part      another record
//     optional  another record, or nothing
//     list      any number of records
//     series    what a chart draws
//     plain     a truth value or a number
//     words     text of UTF-8
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The type of a member, as the record declares it.
#define QUELBY_TYPE_part(type) type
#define QUELBY_TYPE_optional(type) std::optional<type>
#define QUELBY_TYPE_list(type) std::vector<type>
#define QUELBY_TYPE_series(type) std::vector<type>
#define QUELBY_TYPE_plain(type) type
#define QUELBY_TYPE_words(type) type

// NOLINTNEXTLINE(bugprone-macro-parentheses): a name that is declared cannot stand in parentheses
#define QUELBY_DECLARE_MEMBER(kind, type, name) QUELBY_TYPE_##kind(type) name{};
#define QUELBY_VISIT_MEMBER(kind, type, name) visit(std::string_view(#name), record.name);

#define QUELBY_RECORD(Record)                                                                                \
    QUELBY_MEMBERS_OF_##Record(QUELBY_DECLARE_MEMBER)                                                        \
                                                                                                             \
        bool                                                                                                 \
        operator==(const Record&) const = default;                                                           \
                                                                                                             \
    template <typename Visitor>                                                                              \
    static void visitMembers(const Record& record, Visitor& visit) {                                         \
        QUELBY_MEMBERS_OF_##Record(QUELBY_VISIT_MEMBER)                                                      \
    }

namespace quelby {

// Calls visit(name, member) for each member of the record, in the order of its description.
template <typename Record, typename Visitor>
void forEachMember(const Record& record, Visitor visit) {
    Record::visitMembers(record, visit);
}

// What looks at no member.
struct BlindVisitor {
    template <typename Member>
    void operator()(std::string_view /*name*/, const Member& /*member*/) const {}
};

template <typename T>
concept DescribedRecord = requires(const T& record, BlindVisitor visit) {
    T::visitMembers(record, visit);
};

} // namespace quelby
