// Refused: no matching function for call to 'IOServiceGetMatchingService'

#include <IOKit/IOKitLib.h>

io_service_t battery() {
    return IOServiceGetMatchingService(IOServiceMatching("AppleSmartBattery"), kIOMainPortDefault);
}
