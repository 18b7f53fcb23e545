#include "platform/system_words.h"

namespace quelby {

const SystemWords& systemWords() {
    return macosWords;
}

} // namespace quelby
