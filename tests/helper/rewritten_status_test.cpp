// A helper that rewrites its status without pause, in another process, while the status is read.

#include <fstream>

#include <gtest/gtest.h>

#include "platform/posix/helper_files.h"
#include "record_texts.h"
#include "support/child_process.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

const std::string otherText =
    with(with(statusText, R"("calibrationPhase":"Discharging to 15%",)", ""), "42", "7");

// No longer than the test, however that ends.
template <typename Write>
ChildProcess restlessHelper(const Write& write) {
    return ChildProcess([&, test = ::getpid()](FileDescriptor ready) {
        ready.close();
        while (::getppid() == test) {
            write(statusText);
            write(otherText);
        }
    });
}

struct Readings {
    int ofOne = 0;
    int ofTheOther = 0;
    int ofNone = 0; // no file, or not whole

    [[nodiscard]] bool suffice() const { return ofOne > 100 && ofTheOther > 100; }
};

Readings readUntilBothAreSeen(HelperFiles& files) {
    const auto otherStatus = decodeDaemonStatus(otherText);
    Readings readings;
    for (int reading = 0; reading < 5'000'000 && !readings.suffice(); ++reading) {
        const auto text = files.status();
        const auto status = text ? decodeDaemonStatus(*text) : std::nullopt;
        if (!status) {
            ++readings.ofNone;
        } else if (status == statusOfText) {
            ++readings.ofOne;
        } else if (status == otherStatus) {
            ++readings.ofTheOther;
        } else {
            ADD_FAILURE() << "nobody wrote this: " << *text;
            break;
        }
    }
    return readings;
}

TEST(RewrittenStatus, IsAlwaysOneOfThoseThatWereWrittenWhereItIsReplaced) {
    const TemporaryFolder folder;
    const auto file = folder.write("status.json", statusText);
    const auto helper = restlessHelper([&](const std::string& text) {
        const auto neighbour = file.string() + ".new";
        std::ofstream(neighbour) << text;
        std::filesystem::rename(neighbour, file);
    });
    HelperFiles files(folder.path());
    const auto readings = readUntilBothAreSeen(files);
    EXPECT_TRUE(readings.suffice());
    EXPECT_EQ(readings.ofNone, 0);
}

TEST(RewrittenStatus, IsOneOfThoseThatWereWrittenOrNoneWhereItIsRewrittenInPlace) {
    const TemporaryFolder folder;
    const auto file = folder.write("status.json", statusText);
    const auto helper =
        restlessHelper([&](const std::string& text) { std::ofstream(file, std::ios::trunc) << text; });
    HelperFiles files(folder.path());
    EXPECT_TRUE(readUntilBothAreSeen(files).suffice());
}

TEST(RewrittenStatus, IsOneOfThoseThatWereWrittenOrNoneWhereItIsWrittenInPieces) {
    const TemporaryFolder folder;
    const auto file = folder.write("status.json", statusText);
    const auto helper = restlessHelper([&](const std::string& text) {
        std::ofstream stream(file, std::ios::trunc);
        stream << text.substr(0, 50) << std::flush << text.substr(50);
    });
    HelperFiles files(folder.path());
    EXPECT_TRUE(readUntilBothAreSeen(files).suffice());
}

} // namespace
} // namespace quelby
