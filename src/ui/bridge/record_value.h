// Makes value types of QML from the descriptions of records, one line for each record:
//
//     QUELBY_VALUE(BatteryCard, batteryContent)
//
// declares the gadget BatteryCardValue, in QML "batteryContent". It has the record's members as properties,
// and one more: "present", which is false where there is no such record. What belongs to an absent record is
// absent or empty. The value holds the record itself, which is converted bit by bit as QML asks for it.
//
// A list has a "length", and "at(index)" gives a row. What shows the last row of a list that becomes shorter
// hears of it before it goes: beyond the end there is an absent row. A series has a "length", and is
// otherwise handed on as it is to the chart that draws it.
#pragma once

#include <optional>
#include <string_view>
#include <type_traits>
#include <vector>

#include <QObject>
#include <QString>
#include <qqml.h>

#include "ui/bridge/shared_record.h"
#include "ui/presentation/elements/record.h"

// The type of QML that each kind of member has.
#define QUELBY_QML_part(type) quelby::type##Value
#define QUELBY_QML_optional(type) quelby::type##Value
#define QUELBY_QML_list(type) quelby::type##List
#define QUELBY_QML_series(type) quelby::type##Series
#define QUELBY_QML_plain(type) type
#define QUELBY_QML_words(type) QString

#define QUELBY_PROPERTY(kind, type, name) Q_PROPERTY(QUELBY_QML_##kind(type) name READ name CONSTANT)

#define QUELBY_READER(kind, type, name)                                                                      \
    [[nodiscard]] QUELBY_QML_##kind(type) name() const {                                                     \
        return seenByQml<QUELBY_QML_##kind(type)>(record_, record_->name);                                   \
    }

#define QUELBY_GADGET(qmlName) Q_GADGET QML_VALUE_TYPE(qmlName)

// What all of them have: made from a record or from a shared one, and compared by what the records say.
#define QUELBY_HOLD(Gadget, Record)                                                                          \
    SharedRecord<Record> record_;                                                                            \
                                                                                                             \
public:                                                                                                      \
    using HeldRecord = Record;                                                                               \
                                                                                                             \
    Gadget() = default;                                                                                      \
    explicit Gadget(Record record) : record_(std::move(record)) {}                                           \
    explicit Gadget(SharedRecord<Record> record) : record_(std::move(record)) {}                             \
                                                                                                             \
    const Record& operator*() const {                                                                        \
        return *record_;                                                                                     \
    }                                                                                                        \
    const Record* operator->() const {                                                                       \
        return &*record_;                                                                                    \
    }                                                                                                        \
    bool operator==(const Gadget&) const = default;

#define QUELBY_VALUE_BODY(Record, qmlName)                                                                   \
    QUELBY_GADGET(qmlName)                                                                                   \
    QUELBY_HOLD(Record##Value, Record)                                                                       \
                                                                                                             \
    Q_PROPERTY(bool present READ present CONSTANT)                                                           \
    [[nodiscard]] bool present() const {                                                                     \
        return record_.present();                                                                            \
    }                                                                                                        \
                                                                                                             \
    QUELBY_MEMBERS_OF_##Record(QUELBY_PROPERTY) QUELBY_MEMBERS_OF_##Record(QUELBY_READER)

#define QUELBY_VALUE(Record, qmlName)                                                                        \
    struct Record##Value {                                                                                   \
        QUELBY_VALUE_BODY(Record, qmlName)                                                                   \
    };

#define QUELBY_SEQUENCE_BODY(Gadget, Element, qmlName)                                                       \
    QUELBY_GADGET(qmlName)                                                                                   \
    Q_PROPERTY(int length READ length CONSTANT)                                                              \
    QUELBY_HOLD(Gadget, std::vector<Element>)                                                                \
                                                                                                             \
    [[nodiscard]] int length() const {                                                                       \
        return static_cast<int>(record_->size());                                                            \
    }

#define QUELBY_LIST(Record, qmlName)                                                                         \
    struct Record##List {                                                                                    \
        QUELBY_SEQUENCE_BODY(Record##List, Record, qmlName)                                                  \
                                                                                                             \
        Q_INVOKABLE quelby::Record##Value at(int index) const {                                              \
            return Record##Value(rowOf(record_, index));                                                     \
        }                                                                                                    \
    };

#define QUELBY_SERIES(Element, qmlName)                                                                      \
    struct Element##Series {                                                                                 \
        QUELBY_SEQUENCE_BODY(Element##Series, Element, qmlName)                                              \
    };

namespace quelby {

template <typename Value>
concept HoldsRecord = requires {
    typename Value::HeldRecord;
};

[[nodiscard]] inline QString qString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// A member of a shared record as the type of QML that belongs to it.
template <typename Seen, typename Record, typename Member>
Seen seenByQml(const SharedRecord<Record>& record, const Member& member) {
    if constexpr (std::is_same_v<Seen, Member>) {
        return member;
    } else if constexpr (std::is_same_v<Seen, QString>) {
        return qString(member);
    } else {
        return Seen(SharedRecord<Member>(record, member));
    }
}

template <typename Seen, typename Record, typename Member>
Seen seenByQml(const SharedRecord<Record>& record, const std::optional<Member>& member) {
    return member ? seenByQml<Seen>(record, *member) : Seen();
}

template <typename Record>
SharedRecord<Record> rowOf(const SharedRecord<std::vector<Record>>& rows, int index) {
    const bool exists = index >= 0 && static_cast<std::size_t>(index) < rows->size();
    return exists ? SharedRecord<Record>(rows, (*rows)[static_cast<std::size_t>(index)])
                  : SharedRecord<Record>();
}

} // namespace quelby

// No QList of them is ever made. Telling QML of one for each of them would be half of the bridge's code.
template <quelby::HoldsRecord Value>
struct QQmlPrivate::QmlMetaType<Value> {
    static constexpr bool hasAcceptableCtors() { return true; }

    static QMetaType self() { return QMetaType::fromType<Value>(); }

    static QMetaType list() { return {}; }

    static QMetaSequence sequence() { return {}; }
};
