#pragma once

#include "history/sqlite/statement.h"

namespace quelby {

// What is written from its begin to its commit is kept wholly or not at all: it is taken back where this ends
// without a commit, by an exception as well, so that nothing of what comes later waits for one.
class Transaction {
public:
    // How it begins: "BEGIN", or "BEGIN IMMEDIATE", which fails where somebody else writes. The connection
    // outlives it.
    Transaction(sqlite3* connection, const char* begin);
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    ~Transaction();

    [[nodiscard]] bool hasBegun() const { return hasBegun_; }

    // Whether all of it is kept.
    [[nodiscard]] bool commit();

private:
    sqlite3* connection_;
    Statement rollback_; // ready before it is needed, which may be where there is no memory
    bool hasBegun_;
};

} // namespace quelby
