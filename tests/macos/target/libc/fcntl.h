#pragma once

#include_next <fcntl.h>

// Of Linux alone.
#undef O_DIRECT
#undef O_NOATIME
#undef O_PATH
#undef O_TMPFILE
#undef F_OFD_SETLK
#undef F_OFD_SETLKW
#undef POSIX_FADV_DONTNEED
