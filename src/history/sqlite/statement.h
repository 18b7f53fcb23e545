#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <sqlite3.h>

namespace quelby {

// Statements that give no rows and take no values. False: the first of them that went wrong was the last.
bool execute(sqlite3* connection, const char* script);

// One prepared statement. Where preparing failed, binding and stepping do nothing.
class Statement {
public:
    // The connection outlives the statement.
    Statement(sqlite3* connection, const std::string& text);

    [[nodiscard]] bool isPrepared() const { return statement_ != nullptr; }

    // Parameters count from 1.
    void bind(int parameter, std::int64_t value);
    void bind(int parameter, std::int32_t value);
    void bind(int parameter, double value);
    void bind(int parameter, std::string_view text);

    void bindNull(int parameter);

    // NULL, where there is no value.
    template <typename T>
    void bind(int parameter, const std::optional<T>& value) {
        if (value) {
            bind(parameter, *value);
        } else {
            bindNull(parameter);
        }
    }

    // What is bound stays, and the next step() is the first one again.
    void reset();

    // True while there is a row to be read.
    [[nodiscard]] bool step();

    // SQLite's code of what happened last: SQLITE_OK, SQLITE_ROW, SQLITE_DONE, or what went wrong.
    [[nodiscard]] int outcome() const { return outcome_; }

    // Of the present row; columns count from 0. NULL reads as 0, and as an empty text.
    [[nodiscard]] std::int64_t integer(int column) const;
    [[nodiscard]] double number(int column) const;
    [[nodiscard]] std::string text(int column) const;
    [[nodiscard]] bool isNull(int column) const;

private:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };

    std::unique_ptr<sqlite3_stmt, Finalize> statement_; // null where preparing failed
    int outcome_ = SQLITE_OK;
};

} // namespace quelby
