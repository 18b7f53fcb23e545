#pragma once

namespace quelby {

// Takes over the user's locale, or the C locale with UTF-8 where the user's has another encoding: Qt would
// switch to that itself, but with a warning on standard error. To be called before Qt starts.
void useUtf8Locale();

} // namespace quelby
