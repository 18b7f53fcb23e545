#include "console/utf8_locale.h"

#include <clocale>
#include <cstdlib>
#include <string_view>

#include <langinfo.h>

namespace quelby {

void useUtf8Locale() {
    std::setlocale(LC_ALL, "");
    if (std::string_view(nl_langinfo(CODESET)) != "UTF-8") {
        ::setenv("LC_ALL", "C.UTF-8", 1); // the environment, because Qt looks there again
        std::setlocale(LC_ALL, "");
    }
}

} // namespace quelby
