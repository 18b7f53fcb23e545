#include "cli/arguments/title_template.h"

#include <CLI/CLI.hpp>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quelby::cli {
namespace {

using testing::HasSubstr;

std::string complaintAbout(const std::string& text) {
    try {
        static_cast<void>(parseTitleTemplate(text));
    } catch (const CLI::ValidationError& error) {
        return error.what();
    }
    return "none";
}

TEST(TitleTemplateTest, KeepsTheTextAroundItsFigures) {
    const auto pieces = parseTitleTemplate("at {watts} W, {percent} %");
    ASSERT_EQ(pieces.size(), 3U);
    EXPECT_EQ(pieces[0].text, "at ");
    EXPECT_EQ(pieces[0].figure, TitleFigure::watts);
    EXPECT_EQ(pieces[1].text, " W, ");
    EXPECT_EQ(pieces[1].figure, TitleFigure::percent);
    EXPECT_EQ(pieces[2].text, " %");
    EXPECT_FALSE(pieces[2].hasFigure);
}

TEST(TitleTemplateTest, TakesTwoBracesForOne) {
    const auto pieces = parseTitleTemplate("{{{state}}}");
    ASSERT_EQ(pieces.size(), 2U);
    EXPECT_EQ(pieces[0].text, "{");
    EXPECT_EQ(pieces[0].figure, TitleFigure::state);
    EXPECT_EQ(pieces[1].text, "}");
}

TEST(TitleTemplateTest, AnswersAnUnknownNameWithTheKnownOnes) {
    EXPECT_THAT(complaintAbout("{joules}"), HasSubstr("knows no \"{joules}\", but watts, percent, time"));
    EXPECT_THAT(complaintAbout("{}"), HasSubstr("knows no \"{}\""));
}

TEST(TitleTemplateTest, RefusesASingleBrace) {
    for (const auto* const text : {"{watts", "watts}", "{", "}", "a } b"}) {
        EXPECT_THAT(complaintAbout(text), HasSubstr("single brace")) << text;
    }
}

} // namespace
} // namespace quelby::cli
