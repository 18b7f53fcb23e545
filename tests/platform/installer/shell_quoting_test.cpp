#include "platform/installer/shell_quoting.h"

#include <gtest/gtest.h>

#include "support/program.h"

namespace quelby {
namespace {

TEST(ShellQuoting, PutsSingleQuotesAroundAWordAndSpellsThoseWithin) {
    EXPECT_EQ(shellQuoted("/usr/lib"), "'/usr/lib'");
    EXPECT_EQ(shellQuoted("it's"), R"('it'\''s')");
    EXPECT_EQ(shellQuoted(""), "''");
}

TEST(ShellQuoting, ReachesAProgramAsItWasWhateverItsCharacters) {
    std::string everyByte;
    for (int byte = 1; byte < 256; ++byte) {
        everyByte += static_cast<char>(byte);
    }
    for (const auto& word : {everyByte, std::string("''"), std::string("'\n'\n"), std::string("\\"),
                             std::string("-n $(id) `id` *")}) {
        EXPECT_EQ(runProgram({"/bin/sh", "-c", "printf '<%s>' " + shellQuoted(word)}).output,
                  '<' + word + '>');
    }
}

} // namespace
} // namespace quelby
