#include "history/history_file.h"

#include <csignal>

#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include "history/sqlite/statement.h"
#include "history/support/history_fixture.h"
#include "support/ordinary_user.h"
#include "support/started.h"

namespace quelby {
namespace {

namespace fs = std::filesystem;

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

class HistoryFile : public HistoryTest {
protected:
    // The content of every file beside the history, with its own, but not of the memory that its
    // connections share.
    [[nodiscard]] std::map<std::string, std::string> lastingFiles() const {
        std::map<std::string, std::string> contents;
        for (const auto& name : folder.names("Quelby")) {
            if (name != "history.db-shm") {
                contents[name] = folder.read("Quelby/" + name);
            }
        }
        return contents;
    }

    [[nodiscard]] static std::int64_t readings(const fs::path& database) {
        const auto connection = openForReading(database);
        if (!connection) {
            ADD_FAILURE() << connection.error().sentence;
            return 0;
        }
        Statement count(connection->get(), "SELECT COUNT(*) FROM readings");
        return count.step() ? count.integer(0) : 0;
    }

    // A recorder that is killed after its readings.
    void beRecordedByAVictim(int count) {
        store.reset();
        const pid_t victim = started(::fork());
        if (victim == 0) {
            openAgain();
            recordEvery(3, noon, noon + 3 * count);
            ::kill(::getpid(), SIGKILL);
        }
        int status = 0;
        ::waitpid(victim, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status));
    }

    // By somebody who may read the history, but may change nothing in its folder.
    [[nodiscard]] bool areReadByAStranger(std::int64_t count) const {
        const auto quelbyFolder = file.parent_path();
        fs::permissions(folder.path(), fs::perms(0755));
        fs::permissions(quelbyFolder, fs::perms(0555));
        const bool read = doneByAnOrdinaryUser([&] { return readings(file) == count; });
        fs::permissions(quelbyFolder, fs::perms(0755));
        return read;
    }
};

TEST_F(HistoryFile, AtRestIsReadWithoutATrace) {
    recordEvery(3, noon, noon + 30);
    store.reset();
    const auto before = lastingFiles();
    EXPECT_EQ(before.size(), 1U);
    {
        const auto connection = openForReading(file);
        ASSERT_TRUE(connection);
        Statement count(connection->get(), "SELECT COUNT(*) FROM readings");
        EXPECT_TRUE(count.step());
        EXPECT_FALSE(fs::exists(file.string() + "-shm")); // not even while it is open
    }
    EXPECT_EQ(lastingFiles(), before);
    EXPECT_FALSE(fs::exists(file.string() + "-shm"));
}

TEST_F(HistoryFile, IsReadBesideALivingRecorder) {
    recordEvery(3, noon, noon + 30);
    const auto before = lastingFiles();
    EXPECT_EQ(before.size(), 2U); // the database and its log
    EXPECT_EQ(readings(file), 10);
    EXPECT_EQ(lastingFiles(), before);
    recordAt(noon + 30);
    EXPECT_EQ(readings(file), 11);
}

TEST_F(HistoryFile, ShowsAReaderWhatIsRecordedMeanwhile) {
    recordAt(noon);
    HistoryStore reader(folder.path(), clock, HistoryAccess::readOnly);
    EXPECT_EQ(reader.loadData(TimeRange::oneHour).points.size(), 1U);
    recordAt(noon + 3);
    EXPECT_EQ(reader.loadData(TimeRange::oneHour).points.size(), 2U);
}

TEST_F(HistoryFile, IsReadAfterItsRecorderWasKilled) {
    beRecordedByAVictim(10);
    const auto before = lastingFiles();
    EXPECT_EQ(before.size(), 2U);
    EXPECT_FALSE(before.at("history.db-wal").empty());
    EXPECT_EQ(readings(file), 10);
    EXPECT_EQ(readings(file), 10);
    EXPECT_EQ(lastingFiles(), before);
}

TEST_F(HistoryFile, IsReadWhereTheSharedMemoryOfAKilledRecorderIsGone) {
    beRecordedByAVictim(10);
    fs::remove(file.string() + "-shm");
    const auto before = lastingFiles();
    EXPECT_EQ(readings(file), 10);
    EXPECT_EQ(lastingFiles(), before);
}

TEST_F(HistoryFile, IsTakenOverFromAKilledRecorder) {
    beRecordedByAVictim(10);
    openAgain();
    recordAt(noon + 30);
    EXPECT_EQ(tables().readings.size(), 11U);
    store.reset();
    EXPECT_EQ(lastingFiles().size(), 1U);
}

TEST_F(HistoryFile, IsReadInAFolderThatCannotBeWrittenTo) {
    recordEvery(3, noon, noon + 30);
    EXPECT_TRUE(areReadByAStranger(10)); // beside a recorder
    beRecordedByAVictim(12);
    EXPECT_TRUE(areReadByAStranger(12)); // after one was killed
    openAgain();
    store.reset();
    EXPECT_TRUE(areReadByAStranger(12)); // at rest
}

TEST_F(HistoryFile, IsNotChangedByAReader) {
    recordAt(noon);
    for (const bool atRest : {false, true}) {
        if (atRest) {
            store.reset();
        }
        const auto connection = openForReading(file);
        ASSERT_TRUE(connection);
        Statement deletion(connection->get(), "DELETE FROM readings");
        EXPECT_FALSE(deletion.step());
        EXPECT_EQ(deletion.outcome(), SQLITE_READONLY);
    }
}

TEST_F(HistoryFile, MayLieInAFolderOfAnyName) {
    for (const auto* name : {"a b", "a?b=c", "a#b", "100%41", "grün", "a&b;c'd\"e"}) {
        const auto support = folder.path() / name;
        clock.time = noon;
        {
            HistoryStore other(support, clock, HistoryAccess::recording);
            other.addReading(10, 50, false, 25);
            EXPECT_EQ(readings(historyFile(support)), 1) << name;
        }
        EXPECT_EQ(readings(historyFile(support)), 1) << name;
    }
}

TEST_F(HistoryFile, SaysWhyThereIsNothingToRead) {
    store.reset();
    const auto text = folder.write("text.db", std::string(8192, 'x'));
    const auto directory = folder.path() / "directory.db";
    fs::create_directory(directory);
    const std::vector<std::pair<fs::path, const char*>> bad = {
        {folder.path() / "missing.db", "does not exist"},
        {text / "below.db", "does not exist"},
        {directory, "it is not a file"},
        {text, "file is not a database"},
    };
    for (const auto& [path, why] : bad) {
        const auto refused = openForReading(path);
        ASSERT_FALSE(refused) << path;
        EXPECT_THAT(refused.error().sentence,
                    AllOf(HasSubstr(path.string()), HasSubstr(why), Not(HasSubstr("\n"))));
    }
}

} // namespace
} // namespace quelby
