#pragma once

#include <map>
#include <string>
#include <string_view>

#include "history/sqlite/statement.h"

namespace quelby {

// The statements of one connection. Each is prepared when it runs for the first time, and kept: preparing costs
// more than running does.
class PreparedStatements {
public:
    // The connection outlives them.
    explicit PreparedStatements(sqlite3* connection) : connection_(connection) {}

    // Runs the statement to its end, with the values in the places of its parameters. Whether it got there.
    template <typename... Values>
    [[nodiscard]] bool run(std::string_view text, const Values&... values) {
        return forEachRow(
            text, [](const Statement& /*row*/) {}, values...);
    }

    // The same, and calls read(row) for each row of the answer.
    template <typename Read, typename... Values>
    [[nodiscard]] bool forEachRow(std::string_view text, Read read, const Values&... values) {
        auto& statement = prepared(text);
        const ResetAtEnd reset{statement};
        int parameter = 0;
        (statement.bind(++parameter, values), ...);
        while (statement.step()) {
            read(static_cast<const Statement&>(statement));
        }
        return statement.outcome() == SQLITE_DONE;
    }

private:
    // Or it would hold its locks; also where reading a row throws.
    struct ResetAtEnd {
        Statement& statement;

        explicit ResetAtEnd(Statement& which) : statement(which) {}

        ResetAtEnd(const ResetAtEnd&) = delete;
        ResetAtEnd& operator=(const ResetAtEnd&) = delete;

        ~ResetAtEnd() { statement.reset(); }
    };

    [[nodiscard]] Statement& prepared(std::string_view text);

    sqlite3* connection_;
    std::map<std::string, Statement, std::less<>> statements_;
};

} // namespace quelby
