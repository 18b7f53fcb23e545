#include "cli/terminal/device/keys.h"

#include <gmock/gmock.h>

namespace quelby::cli {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Keys, AreTheCharactersThatWereTyped) {
    EXPECT_THAT(keyPresses("q1"), ElementsAre(KeyPress{Key::character, 'q'}, KeyPress{Key::character, '1'}));
    EXPECT_THAT(keyPresses(""), IsEmpty());
}

TEST(Keys, OfTheKeypadComeAsSequences) {
    const std::pair<const char*, Key> sequences[] = {
        {"\x1b[A", Key::up},      {"\x1b[B", Key::down},      {"\x1bOA", Key::up},   {"\x1bOB", Key::down},
        {"\x1b[5~", Key::pageUp}, {"\x1b[6~", Key::pageDown}, {"\x1b[H", Key::home}, {"\x1b[F", Key::end},
        {"\x1b[1~", Key::home},   {"\x1b[4~", Key::end},      {"\x1bOH", Key::home}, {"\x1bOF", Key::end}};
    for (const auto& [bytes, key] : sequences) {
        EXPECT_THAT(keyPresses(bytes), ElementsAre(KeyPress{key})) << bytes + 1;
    }
}

TEST(Keys, MayComeSeveralAtATime) {
    EXPECT_THAT(keyPresses("\x1b[B\x1b[Bq"),
                ElementsAre(KeyPress{Key::down}, KeyPress{Key::down}, KeyPress{Key::character, 'q'}));
}

TEST(Keys, ThatNobodyKnowsLeaveNothingBehind) {
    EXPECT_THAT(keyPresses("\x1b[200~x"), ElementsAre(KeyPress{Key::character, 'x'}));
    EXPECT_THAT(keyPresses("\x1b[1;5C"), IsEmpty());
    EXPECT_THAT(keyPresses("\x1b[1;"), IsEmpty());
}

TEST(Keys, TellEscapeFromASequence) {
    EXPECT_THAT(keyPresses("\x1b"), ElementsAre(KeyPress{Key::escape}));
    EXPECT_THAT(keyPresses("\x1bq"), ElementsAre(KeyPress{Key::escape}, KeyPress{Key::character, 'q'}));
}

} // namespace
} // namespace quelby::cli
