#include "history/sqlite/prepared_statements.h"

#include <utility>

namespace quelby {

Statement& PreparedStatements::prepared(std::string_view text) {
    const auto known = statements_.find(text);
    if (known != statements_.end() && known->second.isPrepared()) {
        return known->second;
    }
    std::string name(text);
    Statement statement(connection_, name);
    return statements_.insert_or_assign(std::move(name), std::move(statement)).first->second;
}

} // namespace quelby
