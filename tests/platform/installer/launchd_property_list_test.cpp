#include "platform/installer/launchd_property_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/program.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

class LaunchdPropertyList : public testing::Test {
protected:
    TemporaryFolder folder;
    std::string file = folder.write("helper.plist", launchdPropertyList());
};

TEST_F(LaunchdPropertyList, HasTheseTwelveLines) {
    EXPECT_EQ(launchdPropertyList(),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
              "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
              "<plist version=\"1.0\">\n"
              "<dict>\n"
              "    <key>Label</key>\n"
              "    <string>com.quelby.limiter</string>\n"
              "    <key>ProgramArguments</key>\n"
              "    <array><string>/Library/PrivilegedHelperTools/pwr_limiter</string></array>\n"
              "    <key>RunAtLoad</key><true/>\n"
              "    <key>KeepAlive</key><true/>\n"
              "</dict>\n"
              "</plist>\n");
}

TEST_F(LaunchdPropertyList, IsWellFormed) {
    const auto check = runProgram({"/usr/bin/env", "xmllint", "--nonet", "--noout", file});
    EXPECT_EQ(check.exitStatus, 0) << check.errors;
    EXPECT_EQ(check.errors, "");
}

// Its exit status is 0 also for a broken file, so what it makes of this one is looked at.
TEST_F(LaunchdPropertyList, IsReadByThePropertyListTool) {
    const auto converted = runProgram({"/usr/bin/env", "plistutil", "-i", file, "-f", "xml"});
    EXPECT_EQ(converted.errors, "");
    for (const auto* content :
         {"<key>Label</key>", "<string>com.quelby.limiter</string>", "<key>ProgramArguments</key>",
          "<string>/Library/PrivilegedHelperTools/pwr_limiter</string>", "<key>RunAtLoad</key>",
          "<key>KeepAlive</key>"}) {
        EXPECT_THAT(converted.output, testing::HasSubstr(content));
    }
}

TEST_F(LaunchdPropertyList, SaysWhatIsStartedAndWhen) {
    const auto* const program = "import json, plistlib, sys\n"
                                "with open(sys.argv[1], 'rb') as file:\n"
                                "    print(json.dumps(plistlib.load(file), sort_keys=True))\n";
    const auto content = runProgram({"/usr/bin/env", "python3", "-c", program, file});
    EXPECT_EQ(content.output, R"({"KeepAlive": true, "Label": "com.quelby.limiter", )"
                              R"("ProgramArguments": ["/Library/PrivilegedHelperTools/pwr_limiter"], )"
                              R"("RunAtLoad": true})"
                              "\n")
        << content.errors;
}

} // namespace
} // namespace quelby
