#pragma once

#include_next <sys/socket.h>

// Of Linux alone.
#undef MSG_NOSIGNAL
#undef SOCK_CLOEXEC
#undef SOCK_NONBLOCK
