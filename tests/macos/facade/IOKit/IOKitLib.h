// What Quelby uses of IOKit, declared after the vendor's public documentation.
#pragma once

#include <CoreFoundation/CoreFoundation.h>

#ifdef __APPLE__
#define QUELBY_SINCE(version) __attribute__((availability(macos, introduced = version)))
#else
#define QUELBY_SINCE(version)
#endif

#ifdef __cplusplus
extern "C" {
#endif

typedef int kern_return_t;
typedef unsigned int mach_port_t;
typedef mach_port_t io_object_t;
typedef io_object_t io_registry_entry_t;
typedef io_object_t io_service_t;
typedef UInt32 IOOptionBits;

#define KERN_SUCCESS 0
#define IO_OBJECT_NULL ((io_object_t)0)

extern const mach_port_t kIOMainPortDefault QUELBY_SINCE(12.0);

CFMutableDictionaryRef _Nullable IOServiceMatching(const char* _Nonnull name);

// Releases the dictionary that it is given.
io_service_t IOServiceGetMatchingService(mach_port_t mainPort, CFDictionaryRef _Nullable matching);

kern_return_t IORegistryEntryCreateCFProperties(io_registry_entry_t entry,
                                                CFMutableDictionaryRef _Nullable* _Nonnull properties,
                                                CFAllocatorRef _Nullable allocator, IOOptionBits options);

kern_return_t IOObjectRelease(io_object_t object);

#ifdef __cplusplus
}
#endif
