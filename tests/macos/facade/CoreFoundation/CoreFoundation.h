// What Quelby uses of CoreFoundation, declared after the vendor's public documentation. Whatever is not here
// may not be used before it is looked up and added.
#pragma once

#include <stdint.h>

#ifndef __clang__
#define _Nullable
#define _Nonnull
#endif

#ifdef __cplusplus
extern "C" {
#endif

typedef unsigned char Boolean;
typedef uint32_t UInt32;
typedef signed long CFIndex;
typedef unsigned long CFTypeID;
typedef UInt32 CFStringEncoding;

typedef const void* CFTypeRef;
typedef const struct __CFAllocator* CFAllocatorRef;
typedef const struct __CFBoolean* CFBooleanRef;
typedef const struct __CFDictionary* CFDictionaryRef;
typedef struct __CFDictionary* CFMutableDictionaryRef;
typedef const struct __CFNumber* CFNumberRef;
typedef const struct __CFString* CFStringRef;

enum { kNilOptions = 0 };

enum { kCFStringEncodingUTF8 = 0x08000100 };

typedef enum CFNumberType : CFIndex { kCFNumberSInt64Type = 4 } CFNumberType;

extern const CFAllocatorRef _Nullable kCFAllocatorDefault;

CFTypeID CFGetTypeID(CFTypeRef _Nonnull object);
void CFRelease(CFTypeRef _Nonnull object);

CFTypeID CFBooleanGetTypeID(void);
Boolean CFBooleanGetValue(CFBooleanRef _Nonnull boolean);

CFTypeID CFNumberGetTypeID(void);
Boolean CFNumberIsFloatType(CFNumberRef _Nonnull number);
// False where the number does not fit; the value is then an approximation.
Boolean CFNumberGetValue(CFNumberRef _Nonnull number, CFNumberType type, void* _Nonnull value);

CFTypeID CFStringGetTypeID(void);
CFIndex CFStringGetLength(CFStringRef _Nonnull string); // UTF-16 code units
CFIndex CFStringGetMaximumSizeForEncoding(CFIndex length, CFStringEncoding encoding);
Boolean CFStringGetCString(CFStringRef _Nonnull string, char* _Nonnull buffer, CFIndex bufferSize,
                           CFStringEncoding encoding);

CFTypeID CFDictionaryGetTypeID(void);
CFIndex CFDictionaryGetCount(CFDictionaryRef _Nonnull dictionary);
void CFDictionaryGetKeysAndValues(CFDictionaryRef _Nonnull dictionary, const void* _Nonnull* _Nullable keys,
                                  const void* _Nonnull* _Nullable values);

// The program's own domain of preferences.
extern const CFStringRef _Nonnull kCFPreferencesCurrentApplication;

// Writes what was changed, and takes over what others have. False where it could not be written.
Boolean CFPreferencesAppSynchronize(CFStringRef _Nonnull domain);

#ifdef __cplusplus
}
#endif
