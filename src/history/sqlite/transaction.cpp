#include "history/sqlite/transaction.h"

namespace quelby {

Transaction::Transaction(sqlite3* connection, const char* begin)
    : connection_(connection)
    , rollback_(connection, "ROLLBACK")
    , hasBegun_(rollback_.outcome() == SQLITE_OK && execute(connection, begin)) {}

Transaction::~Transaction() {
    if (sqlite3_get_autocommit(connection_) == 0) {
        static_cast<void>(rollback_.step());
    }
}

bool Transaction::commit() {
    return execute(connection_, "COMMIT");
}

} // namespace quelby
