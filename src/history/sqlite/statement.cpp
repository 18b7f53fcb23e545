#include "history/sqlite/statement.h"

namespace quelby {

bool execute(sqlite3* connection, const char* script) {
    return sqlite3_exec(connection, script, nullptr, nullptr, nullptr) == SQLITE_OK;
}

Statement::Statement(sqlite3* connection, const std::string& text) {
    sqlite3_stmt* prepared = nullptr;
    outcome_ = sqlite3_prepare_v2(connection, text.c_str(), -1, &prepared, nullptr);
    statement_.reset(prepared);
}

void Statement::bind(int parameter, std::int64_t value) {
    if (statement_) {
        sqlite3_bind_int64(statement_.get(), parameter, value);
    }
}

void Statement::bind(int parameter, std::int32_t value) {
    if (statement_) {
        sqlite3_bind_int(statement_.get(), parameter, value);
    }
}

void Statement::bind(int parameter, double value) {
    if (statement_) {
        sqlite3_bind_double(statement_.get(), parameter, value);
    }
}

void Statement::bind(int parameter, std::string_view text) {
    if (statement_) {
        sqlite3_bind_text(statement_.get(), parameter, text.data(), static_cast<int>(text.size()),
                          SQLITE_TRANSIENT); // NOLINT: the constant is SQLite's own cast
    }
}

void Statement::bindNull(int parameter) {
    if (statement_) {
        sqlite3_bind_null(statement_.get(), parameter);
    }
}

void Statement::reset() {
    if (statement_) {
        sqlite3_reset(statement_.get());
    }
}

bool Statement::step() {
    if (statement_) {
        outcome_ = sqlite3_step(statement_.get());
    }
    return outcome_ == SQLITE_ROW;
}

std::int64_t Statement::integer(int column) const {
    return sqlite3_column_int64(statement_.get(), column);
}

double Statement::number(int column) const {
    return sqlite3_column_double(statement_.get(), column);
}

std::string Statement::text(int column) const {
    const auto* const text = sqlite3_column_text(statement_.get(), column);
    const auto length = sqlite3_column_bytes(statement_.get(), column);
    return text == nullptr ? std::string() : std::string(text, text + length);
}

bool Statement::isNull(int column) const {
    return sqlite3_column_type(statement_.get(), column) == SQLITE_NULL;
}

} // namespace quelby
