#pragma once

#include <memory>

#include <sqlite3.h>

namespace quelby {

struct CloseConnection {
    void operator()(sqlite3* connection) const { sqlite3_close(connection); }
};

// The one owner of an open database; empty where there is none.
using Connection = std::unique_ptr<sqlite3, CloseConnection>;

} // namespace quelby
