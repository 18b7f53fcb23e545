#include "platform/installer/shell_quoting.h"

namespace quelby {

std::string shellQuoted(std::string_view text) {
    std::string word = "'";
    for (const char character : text) {
        if (character == '\'') {
            word += R"('\'')";
        } else {
            word += character;
        }
    }
    return word + '\'';
}

} // namespace quelby
