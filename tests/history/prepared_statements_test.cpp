#include "history/sqlite/prepared_statements.h"

#include <optional>

#include <gtest/gtest.h>

#include "history/history_file.h"
#include "history/support/tables.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

class PreparedStatementsTest : public testing::Test {
protected:
    TemporaryFolder folder;
    std::filesystem::path file = folder.path() / "some.db";
    Connection connection = openForRecording(file).value_or(Connection{});
    PreparedStatements statements{connection.get()};
};

TEST_F(PreparedStatementsTest, RunAgainWithOtherValues) {
    Database(file).execute("CREATE TABLE t (a INTEGER, b TEXT, c REAL)");
    const auto insert = [&](std::int64_t a, std::string_view b, std::optional<double> c) {
        return statements.run("INSERT INTO t VALUES (?, ?, ?)", a, b, c);
    };
    EXPECT_TRUE(insert(1, "one", 1.5));
    EXPECT_TRUE(insert(2, "two", std::nullopt));
    EXPECT_TRUE(insert(3, "three", 3.5));
    EXPECT_EQ(Database(file).dump("t"), "1,'one',1.5\n2,'two',NULL\n3,'three',3.5\n");
    std::string read;
    EXPECT_TRUE(statements.forEachRow(
        "SELECT b FROM t WHERE a > ? ORDER BY a", [&](const Statement& row) { read += row.text(0) + ' '; },
        std::int64_t{1}));
    EXPECT_EQ(read, "two three ");
}

TEST_F(PreparedStatementsTest, HoldNoLocksBehindThemselves) {
    Database another(file);
    another.execute("CREATE TABLE t (a INTEGER PRIMARY KEY)");
    EXPECT_TRUE(statements.run("INSERT INTO t VALUES (?)", std::int64_t{1}));
    EXPECT_FALSE(statements.run("INSERT INTO t VALUES (?)", std::int64_t{1})) << "there is one already";
    EXPECT_TRUE(statements.run("SELECT * FROM t"));
    another.execute("BEGIN EXCLUSIVE; COMMIT");
}

TEST_F(PreparedStatementsTest, AreTriedAgainWhereTheyCouldNotBePrepared) {
    EXPECT_FALSE(statements.run("DELETE FROM later"));
    Database(file).execute("CREATE TABLE later (a INTEGER)");
    EXPECT_TRUE(statements.run("DELETE FROM later"));
    Database(file).execute("DROP TABLE later");
    EXPECT_FALSE(statements.run("DELETE FROM later"));
    Database(file).execute("CREATE TABLE later (a INTEGER, b TEXT)");
    EXPECT_TRUE(statements.run("DELETE FROM later"));
}

TEST(PreparedStatementsWithoutADatabase, DoNothing) {
    EXPECT_FALSE(PreparedStatements(nullptr).run("SELECT 1"));
}

} // namespace
} // namespace quelby
