// Refused: undefined symbol: pipe2

#include <fcntl.h>
#include <unistd.h>

int main() {
    int ends[2];
    return ::pipe2(ends, O_CLOEXEC);
}
