// What Quelby uses of Foundation, declared after the vendor's public documentation. Whatever is not here may
// not be used before it is looked up and added.
#pragma once

#include <stdbool.h>
#include <stddef.h>

#define QUELBY_SINCE(version) __attribute__((availability(macos, introduced = version)))

typedef long NSInteger;
typedef unsigned long NSUInteger;
typedef bool BOOL;
typedef struct objc_class* Class;
typedef struct objc_selector* SEL;

#define YES __objc_yes
#define NO __objc_no
#define nil nullptr

typedef double CGFloat;

typedef struct CGPoint {
    CGFloat x;
    CGFloat y;
} NSPoint;

typedef struct CGSize {
    CGFloat width;
    CGFloat height;
} NSSize;

typedef struct CGRect {
    NSPoint origin;
    NSSize size;
} NSRect;

typedef enum __attribute__((enum_extensibility(open))) NSRectEdge : NSUInteger {
    NSRectEdgeMinX = 0,
    NSRectEdgeMinY = 1,
    NSRectEdgeMaxX = 2,
    NSRectEdgeMaxY = 3,
} NSRectEdge;

static inline NSPoint NSMakePoint(CGFloat x, CGFloat y) {
    return NSPoint{x, y};
}

static inline NSRect NSMakeRect(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
    return NSRect{{x, y}, {width, height}};
}

static inline CGFloat NSMinX(NSRect rect) {
    return rect.origin.x;
}

static inline CGFloat NSMidX(NSRect rect) {
    return rect.origin.x + rect.size.width / 2;
}

static inline CGFloat NSMinY(NSRect rect) {
    return rect.origin.y;
}

static inline CGFloat NSMaxY(NSRect rect) {
    return rect.origin.y + rect.size.height;
}

#pragma clang assume_nonnull begin

__attribute__((objc_root_class))
@interface NSObject
+ (instancetype)alloc;
+ (Class)class;
- (instancetype)init;
- (instancetype)retain;
- (oneway void)release;
- (instancetype)autorelease;
- (BOOL)isKindOfClass:(Class)type;
@end

typedef NSUInteger NSStringEncoding;

enum : NSStringEncoding { NSUTF8StringEncoding = 4 };

@interface NSString : NSObject
- (nullable instancetype)initWithBytes:(const void*)bytes
                                length:(NSUInteger)length
                              encoding:(NSStringEncoding)encoding;
@property(readonly, nullable) const char* UTF8String;
- (BOOL)isEqualToString:(NSString*)text;
@end

@interface NSValue : NSObject
@end

@interface NSNumber : NSValue
@property(readonly) BOOL boolValue;
@end

@interface NSArray<__covariant ObjectType> : NSObject
+ (instancetype)arrayWithObjects:(const ObjectType _Nonnull[_Nonnull])objects count:(NSUInteger)count;
@property(readonly) NSUInteger count;
@property(nullable, readonly) ObjectType firstObject;
@end

@interface NSDictionary<__covariant KeyType, __covariant ObjectType> : NSObject
@end

@interface NSError : NSObject
@end

typedef NSString* NSKeyValueChangeKey;

typedef NSUInteger NSKeyValueObservingOptions __attribute__((flag_enum, enum_extensibility(open)));

@interface NSObject (NSKeyValueObserving)
- (void)observeValueForKeyPath:(nullable NSString*)keyPath
                      ofObject:(nullable id)object
                        change:(nullable NSDictionary<NSKeyValueChangeKey, id>*)change
                       context:(nullable void*)context;
- (void)addObserver:(NSObject*)observer
         forKeyPath:(NSString*)keyPath
            options:(NSKeyValueObservingOptions)options
            context:(nullable void*)context;
- (void)removeObserver:(NSObject*)observer forKeyPath:(NSString*)keyPath;
@end

typedef NSString* NSNotificationName;

@interface NSNotification : NSObject
@end

@interface NSNotificationCenter : NSObject
@property(class, readonly, strong) NSNotificationCenter* defaultCenter;
- (void)addObserver:(id)observer
           selector:(SEL)selector
               name:(nullable NSNotificationName)name
             object:(nullable id)object;
- (void)removeObserver:(id)observer;
@end

@interface NSURL : NSObject
+ (nullable instancetype)URLWithString:(NSString*)text;
@end

typedef enum __attribute__((enum_extensibility(open))) NSSearchPathDirectory : NSUInteger {
    NSLibraryDirectory = 5,
    NSApplicationSupportDirectory = 14,
} NSSearchPathDirectory;

typedef NSUInteger NSSearchPathDomainMask __attribute__((flag_enum, enum_extensibility(open)));

enum : NSSearchPathDomainMask { NSUserDomainMask = 1 };

extern "C" NSArray<NSString*>* NSSearchPathForDirectoriesInDomains(NSSearchPathDirectory directory,
                                                                   NSSearchPathDomainMask domains,
                                                                   BOOL expandTilde);

typedef double NSTimeInterval;

@interface NSDate : NSObject
+ (instancetype)dateWithTimeIntervalSince1970:(NSTimeInterval)seconds;
@property(readonly) NSTimeInterval timeIntervalSince1970;
@end

@interface NSCalendar : NSObject
@property(class, readonly, copy) NSCalendar* currentCalendar;
- (NSDate*)startOfDayForDate:(NSDate*)date;
@end

@interface NSLocale : NSObject
@property(class, readonly, copy) NSArray<NSString*>* preferredLanguages;
+ (instancetype)localeWithLocaleIdentifier:(NSString*)identifier;
@end

@interface NSFormatter : NSObject
@end

QUELBY_SINCE(10.15)
@interface NSRelativeDateTimeFormatter : NSFormatter
@property(copy, null_resettable) NSLocale* locale;
- (NSString*)localizedStringForDate:(NSDate*)date relativeToDate:(NSDate*)reference;
@end

@interface NSBundle : NSObject
@property(class, readonly) NSBundle* mainBundle;
@property(readonly, copy) NSString* bundlePath;
@property(readonly, copy, nullable) NSString* bundleIdentifier;
@property(readonly, copy, nullable) NSString* executablePath;
@property(readonly, copy, nullable) NSString* resourcePath;
@end

@interface NSProcessInfo : NSObject
@property(class, readonly) NSProcessInfo* processInfo;
@property(readonly) NSUInteger processorCount;
@end

@interface NSUserDefaults : NSObject
@property(class, readonly) NSUserDefaults* standardUserDefaults;
- (nullable id)objectForKey:(NSString*)key;
- (void)setObject:(nullable id)value forKey:(NSString*)key;
- (void)setBool:(BOOL)value forKey:(NSString*)key;
- (void)removeObjectForKey:(NSString*)key;
- (void)removePersistentDomainForName:(NSString*)domain;
@end

@interface NSAppleEventDescriptor : NSObject
@end

@interface NSAppleScript : NSObject
- (nullable instancetype)initWithSource:(NSString*)source;
// Null, with the reason, where the script fails; whatever the declaration says about null.
- (NSAppleEventDescriptor*)executeAndReturnError:(NSDictionary<NSString*, id>* _Nullable* _Nullable)failure;
@end

#pragma clang assume_nonnull end
