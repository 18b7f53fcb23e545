// What the cards are made of, as value types of QML. Each is made from the record of the presentation that
// bears its name; QML only reads them.
#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <qqmlintegration.h>

#include "ui/presentation/charge_limit_card.h"
#include "ui/presentation/elements.h"

namespace quelby {

// The names of the colours, for QML.
namespace Ink { // NOLINT(readability-identifier-naming): types of QML begin with a capital
Q_NAMESPACE
QML_NAMED_ELEMENT(Ink)

enum Name { Primary, Secondary, Green, Yellow, Orange, Red, Blue, Purple, Cyan, Accent, White };
Q_ENUM_NS(Name)
} // namespace Ink

struct InkValue {
    Q_GADGET
    QML_VALUE_TYPE(ink)
    Q_PROPERTY(quelby::Ink::Name name MEMBER name CONSTANT)
    Q_PROPERTY(qreal opacity MEMBER opacity CONSTANT)

public:
    InkValue() = default;
    explicit InkValue(Color color);

    Ink::Name name = Ink::Primary;
    qreal opacity = 1; // 0 to 1

    bool operator==(const InkValue&) const = default;
};

struct TextValue {
    Q_GADGET
    QML_VALUE_TYPE(inkedText)
    Q_PROPERTY(QString text MEMBER text CONSTANT)
    Q_PROPERTY(quelby::InkValue ink MEMBER ink CONSTANT)
    Q_PROPERTY(bool present MEMBER present CONSTANT)

public:
    TextValue() = default;
    explicit TextValue(const Text& content);
    explicit TextValue(const std::optional<Text>& content);

    QString text;
    InkValue ink;
    bool present = false; // otherwise there is nothing to say

    bool operator==(const TextValue&) const = default;
};

struct SymbolValue {
    Q_GADGET
    QML_VALUE_TYPE(inkedSymbol)
    Q_PROPERTY(QString name MEMBER name CONSTANT)
    Q_PROPERTY(quelby::InkValue ink MEMBER ink CONSTANT)

public:
    SymbolValue() = default;
    explicit SymbolValue(const Symbol& symbol);

    QString name;
    InkValue ink;

    bool operator==(const SymbolValue&) const = default;
};

struct LabelValue {
    Q_GADGET
    QML_VALUE_TYPE(inkedLabel)
    Q_PROPERTY(quelby::SymbolValue symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(quelby::TextValue text MEMBER text CONSTANT)

public:
    LabelValue() = default;
    explicit LabelValue(const Label& label);

    SymbolValue symbol;
    TextValue text;

    bool operator==(const LabelValue&) const = default;
};

struct BarValue {
    Q_GADGET
    QML_VALUE_TYPE(inkedBar)
    Q_PROPERTY(qreal fraction MEMBER fraction CONSTANT)
    Q_PROPERTY(QString percent MEMBER percent CONSTANT)
    Q_PROPERTY(quelby::InkValue ink MEMBER ink CONSTANT)

public:
    BarValue() = default;
    explicit BarValue(const Bar& bar);

    qreal fraction = 0; // 0 to 1
    QString percent;    // the same in words
    InkValue ink;

    bool operator==(const BarValue&) const = default;
};

struct ChoiceValue {
    Q_GADGET
    QML_VALUE_TYPE(oneChoice)
    Q_PROPERTY(QString text MEMBER text CONSTANT)
    Q_PROPERTY(bool selected MEMBER selected CONSTANT)

public:
    ChoiceValue() = default;
    explicit ChoiceValue(const Choice& choice);

    QString text;
    bool selected = false;

    bool operator==(const ChoiceValue&) const = default;
};

struct OptionValue {
    Q_GADGET
    QML_VALUE_TYPE(oneOption)
    Q_PROPERTY(quelby::TextValue title MEMBER title CONSTANT)
    Q_PROPERTY(quelby::TextValue subtitle MEMBER subtitle CONSTANT)
    Q_PROPERTY(bool enabled MEMBER enabled CONSTANT)

public:
    OptionValue() = default;
    explicit OptionValue(const Option& option);

    TextValue title;
    TextValue subtitle;
    bool enabled = false;

    bool operator==(const OptionValue&) const = default;
};

struct StatusValue {
    Q_GADGET
    QML_VALUE_TYPE(statusLine)
    Q_PROPERTY(quelby::InkValue dot MEMBER dot CONSTANT)
    Q_PROPERTY(quelby::TextValue text MEMBER text CONSTANT)

public:
    StatusValue() = default;
    explicit StatusValue(const StatusLine& status);

    InkValue dot;
    TextValue text;

    bool operator==(const StatusValue&) const = default;
};

// A list of the records as a list of their values.
template <typename Value, typename Records>
QList<Value> valuesOf(const Records& records) {
    QList<Value> values;
    values.reserve(static_cast<qsizetype>(records.size()));
    for (const auto& record : records) {
        values.append(Value(record));
    }
    return values;
}

[[nodiscard]] QString qString(std::string_view text);

} // namespace quelby
