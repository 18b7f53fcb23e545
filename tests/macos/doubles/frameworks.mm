#include "macos/doubles/frameworks.h"

#include <cstdio>
#include <cstdlib>

#import <AppKit/AppKit.h>
#include <CoreFoundation/CoreFoundation.h>
#import <Foundation/Foundation.h>
#import <Foundation/NSDebug.h>
#import <ServiceManagement/ServiceManagement.h>
#include <objc/runtime.h>

namespace quelby::fake {

namespace {

long livingObjects = 0;

void objectIsMade(Class, id) {
    ++livingObjects;
}

void objectGoes(Class, id) {
    --livingObjects;
}

NSString* autoreleased(std::string_view text) {
    return [[[NSString alloc] initWithBytes:text.data() length:text.size()
                                   encoding:NSUTF8StringEncoding] autorelease];
}

using RemovalOfDomain = void (*)(NSUserDefaults*, SEL, NSString*);

RemovalOfDomain& removalOfDomain() {
    static RemovalOfDomain removal = nullptr;
    return removal;
}

// GNUstep removes nothing for no name, where the program would end on a real system.
void removeNamedDomain(NSUserDefaults* defaults, SEL selector, NSString* domain) {
    if (domain == nil) {
        std::fputs("Misused: no name of the domain to be removed.\n", stderr);
        std::abort();
    }
    removalOfDomain()(defaults, selector, domain);
}

Frameworks initialFrameworks() {
    const Method removal =
        class_getInstanceMethod([NSUserDefaults class], @selector(removePersistentDomainForName:));
    removalOfDomain() = reinterpret_cast<RemovalOfDomain>(
        method_setImplementation(removal, reinterpret_cast<IMP>(removeNamedDomain)));
    return {};
}

} // namespace

Frameworks& frameworks() {
    static Frameworks frameworks = initialFrameworks();
    return frameworks;
}

long objectsLeftBy(const std::function<void()>& action) {
    GSSetDebugAllocationFunctions(objectIsMade, objectGoes);
    action();
    const long before = livingObjects;
    action();
    return livingObjects - before;
}

void setNumber(std::string_view key, long value) {
    @autoreleasepool {
        [[NSUserDefaults standardUserDefaults] setInteger:value forKey:autoreleased(key)];
    }
}

std::string defaultsDomain() {
    @autoreleasepool {
        return [[[NSProcessInfo processInfo] processName] UTF8String];
    }
}

} // namespace quelby::fake

using namespace quelby::fake;

const CFStringRef kCFPreferencesCurrentApplication = reinterpret_cast<CFStringRef>(1);

Boolean CFPreferencesAppSynchronize(CFStringRef domain) {
    if (domain != kCFPreferencesCurrentApplication) {
        std::fputs("Misused: preferences of another program.\n", stderr);
        std::abort();
    }
    ++frameworks().writtenDefaults;
    return [[NSUserDefaults standardUserDefaults] synchronize] != NO ? 1 : 0;
}

@implementation SMAppService

+ (SMAppService*)mainAppService {
    return [[[SMAppService alloc] init] autorelease];
}

- (BOOL)answer:(const char*)question error:(NSError**)error {
    frameworks().registrations.emplace_back(question);
    if (error != nullptr && !frameworks().registrationWorks) {
        *error = [NSError errorWithDomain:@"SMAppServiceErrorDomain" code:1 userInfo:nil];
    }
    return frameworks().registrationWorks ? YES : NO;
}

- (BOOL)registerAndReturnError:(NSError**)error {
    return [self answer:"register" error:error];
}

- (BOOL)unregisterAndReturnError:(NSError**)error {
    return [self answer:"unregister" error:error];
}

@end

// The source is kept, as a copy, in place of what the class would make of it.
@interface CompiledScript : NSAppleScript {
    NSString* source_;
}
@end

@implementation CompiledScript

- (instancetype)initWithSource:(NSString*)source {
    if (!frameworks().scriptsCompile) {
        [self release];
        return nil;
    }
    self = [super init];
    source_ = [source copy];
    return self;
}

- (void)dealloc {
    [source_ release];
    [super dealloc];
}

- (NSAppleEventDescriptor*)executeAndReturnError:(NSDictionary**)failure {
    frameworks().scripts.emplace_back([source_ UTF8String]);
    if (frameworks().scriptsSucceed) {
        return [[[NSAppleEventDescriptor alloc] init] autorelease];
    }
    if (failure != nullptr) {
        *failure = [NSDictionary dictionaryWithObject:@(-128) forKey:@"NSAppleScriptErrorNumber"];
    }
    return nil;
}

@end

@implementation NSAppleScript (Methods)

+ (instancetype)alloc {
    return NSAllocateObject([CompiledScript class], 0, nullptr);
}

- (instancetype)initWithSource:(NSString*)source {
    return [self doesNotRecognizeSelector:_cmd], nil;
}

- (NSAppleEventDescriptor*)executeAndReturnError:(NSDictionary**)failure {
    return [self doesNotRecognizeSelector:_cmd], nil;
}

@end

@implementation NSWorkspace

+ (NSWorkspace*)sharedWorkspace {
    static NSWorkspace* const workspace = [[NSWorkspace alloc] init];
    return workspace;
}

- (BOOL)openURL:(NSURL*)url {
    frameworks().openedUrls.emplace_back([[url absoluteString] UTF8String]);
    return YES;
}

@end

@implementation NSCalendar (StartOfDay)

- (NSDate*)startOfDayForDate:(NSDate*)date {
    return [NSDate dateWithTimeIntervalSince1970:frameworks().startOfDay([date timeIntervalSince1970])];
}

@end

@implementation NSLocale (Languages)

+ (NSArray*)preferredLanguages {
    NSMutableArray* const languages = [NSMutableArray array];
    for (const auto& language : frameworks().languages) {
        [languages addObject:autoreleased(language)];
    }
    return languages;
}

@end

@implementation NSRelativeDateTimeFormatter

- (void)setLocale:(NSLocale*)locale {
    [language_ release];
    language_ = [[locale localeIdentifier] copy];
}

- (void)dealloc {
    [language_ release];
    [super dealloc];
}

- (NSString*)localizedStringForDate:(NSDate*)date relativeToDate:(NSDate*)reference {
    frameworks().spokenLanguage = language_ == nil ? "the program's" : [language_ UTF8String];
    return autoreleased(
        frameworks().spokenDate([date timeIntervalSince1970], [reference timeIntervalSince1970]));
}

@end

@implementation NSBundle (MainBundle)

- (NSString*)bundlePath {
    return autoreleased(frameworks().bundlePath);
}

- (NSString*)executablePath {
    return autoreleased(frameworks().executablePath);
}

- (NSString*)resourcePath {
    return frameworks().resourcePath ? autoreleased(*frameworks().resourcePath) : nil;
}

- (NSString*)bundleIdentifier {
    return frameworks().bundleIdentifier ? autoreleased(*frameworks().bundleIdentifier) : nil;
}

@end
