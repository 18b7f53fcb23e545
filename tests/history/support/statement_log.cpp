#include "statement_log.h"

#include <memory>
#include <utility>

#include <sqlite3.h>

namespace quelby {

namespace {

// SQLite hands an extension nothing but the connection, so this has to be here.
std::vector<std::string>& statements() {
    static std::vector<std::string> all;
    return all;
}

int note(unsigned, void*, void* statement, void*) {
    const std::unique_ptr<char, decltype(&sqlite3_free)> text(
        sqlite3_expanded_sql(static_cast<sqlite3_stmt*>(statement)), sqlite3_free);
    statements().emplace_back(text.get());
    return 0;
}

int watch(sqlite3* connection, char**, const sqlite3_api_routines*) {
    return sqlite3_trace_v2(connection, SQLITE_TRACE_STMT, note, nullptr);
}

auto* const watching = reinterpret_cast<void (*)()>(watch);

} // namespace

StatementLog::StatementLog() {
    statements().clear();
    sqlite3_auto_extension(watching);
}

StatementLog::~StatementLog() {
    sqlite3_cancel_auto_extension(watching);
}

std::vector<std::string> StatementLog::take() {
    return std::exchange(statements(), {});
}

} // namespace quelby
