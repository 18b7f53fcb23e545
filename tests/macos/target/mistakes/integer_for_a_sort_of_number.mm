// Refused: no matching function for call to 'CFNumberGetValue'

#include <CoreFoundation/CoreFoundation.h>

bool read(CFNumberRef number, long long& value) {
    return CFNumberGetValue(number, 4, &value) != 0;
}
