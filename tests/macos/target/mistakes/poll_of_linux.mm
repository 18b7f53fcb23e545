// Refused: macOS has no sys/epoll.h

#include <sys/epoll.h>

int queue() {
    return epoll_create1(0);
}
