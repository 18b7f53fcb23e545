#include "history/history_file.h"

#include <fmt/format.h>

#include "history/sqlite/statement.h"

namespace quelby {

namespace {

namespace fs = std::filesystem;

// Somebody else, such as a database shell, may hold a lock for a moment. Longer would be felt in the user
// interface, which waits for the cycle.
constexpr int patienceMilliseconds = 200;

// A file name as RFC 3986 wants it within a URI.
std::string percentEncoded(const std::string& path) {
    std::string encoded;
    for (const char character : path) {
        const auto byte = static_cast<unsigned char>(character);
        const bool plain = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
                           (byte >= '0' && byte <= '9') || byte == '/' || byte == '-' || byte == '.' ||
                           byte == '_';
        encoded += plain ? std::string(1, character) : fmt::format("%{:02X}", byte);
    }
    return encoded;
}

// Without a write-ahead log nobody records, and SQLite need not make files for locks beside the database.
bool isAtRest(const fs::path& file) {
    std::error_code failure;
    return !fs::exists(file.string() + "-wal", failure);
}

tl::unexpected<Problem> refusal(const char* purpose, const fs::path& file, int outcome) {
    return problem(
        fmt::format("cannot {} the history \"{}\": {}", purpose, file.string(), sqlite3_errstr(outcome)));
}

// SQLite looks into the file only when it is asked for something.
int outcomeOfReading(sqlite3* connection) {
    Statement schema(connection, "SELECT COUNT(*) FROM sqlite_schema");
    return schema.step() ? SQLITE_OK : schema.outcome();
}

} // namespace

fs::path historyFile(const fs::path& applicationSupport) {
    return applicationSupport / "Quelby" / "history.db";
}

Result<Connection> openForRecording(const fs::path& file) {
    std::error_code ignored;
    fs::create_directories(file.parent_path(), ignored);
    sqlite3* handle = nullptr;
    const int outcome = sqlite3_open(file.c_str(), &handle);
    Connection connection(handle); // there is one to be closed also where opening failed
    if (outcome != SQLITE_OK) {
        return refusal("open", file, outcome);
    }
    sqlite3_busy_timeout(handle, patienceMilliseconds);
    return connection;
}

Result<Connection> openForReading(const fs::path& file) {
    std::error_code failure;
    const auto status = fs::status(file, failure);
    if (status.type() == fs::file_type::not_found) {
        return problem(fmt::format("there is no history yet: \"{}\" does not exist", file.string()));
    }
    if (status.type() != fs::file_type::regular) {
        const auto why = failure ? failure.message() : "it is not a file";
        return problem(fmt::format("cannot read the history \"{}\": {}", file.string(), why));
    }
    const auto uri =
        "file:" + percentEncoded(fs::absolute(file).string()) + (isAtRest(file) ? "?immutable=1" : "");
    sqlite3* handle = nullptr;
    int outcome = sqlite3_open_v2(uri.c_str(), &handle, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, nullptr);
    Connection connection(handle);
    if (outcome == SQLITE_OK) {
        sqlite3_busy_timeout(handle, patienceMilliseconds);
        outcome = outcomeOfReading(handle);
    }
    if (outcome != SQLITE_OK) {
        return refusal("read", file, outcome);
    }
    return connection;
}

} // namespace quelby
