#include "helper/json_record.h"

#include <limits>

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace quelby {
namespace {

using namespace std::string_literals;

std::string nested(std::size_t depth) { // the object included
    return R"({"a":)" + std::string(depth - 1, '[') + std::string(depth - 1, ']') + '}';
}

std::string textOf(std::size_t length) {
    const auto frame = R"({"a":""})"s;
    return R"({"a":")" + std::string(length - frame.size(), 'x') + R"("})";
}

TEST(JsonRecord, GivesEachMemberByItsType) {
    const auto record = JsonRecord::read(
        R"( {"flag": false, "count": -7, "ratio": 2.5, "word": "ä\u00e4\n", "nothing": null, "list": [1]} )");
    ASSERT_TRUE(record);
    EXPECT_EQ(record->boolean("flag"), false);
    EXPECT_EQ(record->integer("count"), -7);
    EXPECT_EQ(record->number("count"), -7.0);
    EXPECT_EQ(record->number("ratio"), 2.5);
    EXPECT_EQ(record->text("word"), "ää\n");
    EXPECT_TRUE(record->lacks("nothing"));
    EXPECT_TRUE(record->lacks("other"));
    EXPECT_FALSE(record->lacks("list"));
}

TEST(JsonRecord, GivesNothingOfAnotherType) {
    const auto record = JsonRecord::read(
        R"({"flag": true, "count": 1, "ratio": 1.5, "word": "1", "nothing": null, "list": [1], "object": {}})");
    ASSERT_TRUE(record);
    for (const auto* key : {"count", "ratio", "word", "nothing", "list", "object", "missing"}) {
        EXPECT_EQ(record->boolean(key), std::nullopt) << key;
    }
    for (const auto* key : {"flag", "ratio", "word", "nothing", "list", "object", "missing"}) {
        EXPECT_EQ(record->integer(key), std::nullopt) << key;
    }
    for (const auto* key : {"flag", "word", "nothing", "list", "object", "missing"}) {
        EXPECT_EQ(record->number(key), std::nullopt) << key;
    }
    for (const auto* key : {"flag", "count", "ratio", "nothing", "list", "object", "missing"}) {
        EXPECT_EQ(record->text(key), std::nullopt) << key;
    }
}

TEST(JsonRecord, TellsIntegersFromOtherNumbers) {
    const auto record = JsonRecord::read(
        R"({"lowest": -9223372036854775808, "highest": 9223372036854775807, "above": 9223372036854775808,
            "far": 18446744073709551616, "below": -9223372036854775809, "large": 9007199254740992.0,
            "part": 80.5, "small": 1e-9})");
    ASSERT_TRUE(record);
    EXPECT_EQ(record->integer("lowest"), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(record->integer("highest"), std::numeric_limits<std::int64_t>::max());
    for (const auto* key : {"above", "far", "below", "large", "part", "small"}) {
        EXPECT_EQ(record->integer(key), std::nullopt) << key;
        EXPECT_TRUE(record->number(key)) << key;
    }
    EXPECT_EQ(record->number("above"), 9223372036854775808.0);
    EXPECT_EQ(record->number("part"), 80.5);
}

TEST(JsonRecord, TakesAWholeNumberForAnIntegerHoweverItIsWritten) {
    const auto record = JsonRecord::read(
        R"({"fraction": 80.0, "exponent": 8e1, "shifted": -805e-1, "tens": -800e-1, "none": -0.0,
            "largest": 9007199254740991.0})");
    ASSERT_TRUE(record);
    EXPECT_EQ(record->integer("fraction"), 80);
    EXPECT_EQ(record->integer("exponent"), 80);
    EXPECT_EQ(record->integer("shifted"), std::nullopt);
    EXPECT_EQ(record->integer("tens"), -80);
    EXPECT_EQ(record->integer("none"), 0);
    EXPECT_EQ(record->integer("largest"), 9007199254740991);
    EXPECT_EQ(record->number("fraction"), 80.0);
}

TEST(JsonRecord, TakesAMemberOfAMemberForNothingOfItsOwn) {
    const auto record = JsonRecord::read(R"({"inner": {"a": 1, "b": [{"a": 2}]}, "a": 3})");
    ASSERT_TRUE(record);
    EXPECT_EQ(record->integer("a"), 3);
    EXPECT_TRUE(record->lacks("b"));
}

TEST(JsonRecord, RefusesWhatIsNotOneWholeObject) {
    for (const auto& text : {""s,
                             " "s,
                             "{"s,
                             "}"s,
                             "[]"s,
                             "null"s,
                             "1"s,
                             R"("{}")"s,
                             "[{}]"s,
                             "{}{}"s,
                             "{}x"s,
                             "{} ,"s,
                             "{}\0"s,
                             "{}\0x"s,
                             R"({"a":1,})"s,
                             "{'a':1}"s,
                             "{a:1}"s,
                             R"({"a" 1})"s,
                             R"({"a":1 "b":2})"s,
                             "// no\n{}"s,
                             R"({"a":/**/1})"s,
                             "{\"a\":\"\n\"}"s}) {
        EXPECT_FALSE(JsonRecord::read(text)) << text;
    }
    EXPECT_TRUE(JsonRecord::read("\r\n\t {} \n"));
}

TEST(JsonRecord, RefusesNumbersThatJsonOrADoubleDoesNotHave) {
    for (const auto* number : {"NaN", "Infinity", "-Infinity", "nan", "1e999", "-1e999", "+1", "01", ".5",
                               "5.", "0x10", "1,5", "-"}) {
        EXPECT_FALSE(JsonRecord::read(fmt::format(R"({{"a":{}}})", number))) << number;
    }
}

TEST(JsonRecord, RefusesAKeyThatComesTwiceAnywhere) {
    EXPECT_FALSE(JsonRecord::read(R"({"a":1,"a":1})"));
    EXPECT_FALSE(JsonRecord::read(R"({"a":1,"b":2,"\u0061":3})"));
    EXPECT_FALSE(JsonRecord::read(R"({"a":{"b":1,"b":2}})"));
    EXPECT_FALSE(JsonRecord::read(R"({"a":[{"b":1,"b":2}]})"));
    EXPECT_TRUE(JsonRecord::read(R"({"a":{"a":1},"b":[{"a":1},{"a":2}]})"));
}

TEST(JsonRecord, RefusesTextThatIsNotUtf8) {
    for (const auto* bytes : {"\xFF", "\xC3", "\xC0\xAF", "\xED\xA0\x80", R"(\ud800)", R"(\udc00x)"}) {
        EXPECT_FALSE(JsonRecord::read(fmt::format(R"({{"a":"{}"}})", bytes)));
        EXPECT_FALSE(JsonRecord::read(fmt::format(R"({{"{}":1}})", bytes)));
    }
}

TEST(JsonRecord, ReadsNoTextBeyondItsBounds) {
    EXPECT_TRUE(JsonRecord::read(textOf(JsonRecord::longestText)));
    EXPECT_FALSE(JsonRecord::read(textOf(JsonRecord::longestText + 1)));
    EXPECT_TRUE(JsonRecord::read(nested(JsonRecord::deepestNesting)));
    EXPECT_FALSE(JsonRecord::read(nested(JsonRecord::deepestNesting + 1)));
    EXPECT_FALSE(JsonRecord::read(std::string(JsonRecord::longestText, '[')));
}

// Among thousands of keys with a long common beginning, each is still looked up at once.
TEST(JsonRecord, ReadsAsManyMembersAsFit) {
    std::string text = "{";
    for (int number = 0; text.size() < JsonRecord::longestText - 20; ++number) {
        text += fmt::format(R"("{:06}":[],)", number);
    }
    EXPECT_TRUE(JsonRecord::read(text + R"("last":1})"));
    EXPECT_FALSE(JsonRecord::read(text + R"("000000":1})"));
}

} // namespace
} // namespace quelby
