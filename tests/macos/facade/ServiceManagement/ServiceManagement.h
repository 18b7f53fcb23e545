// What Quelby uses of ServiceManagement, declared after the vendor's public documentation.
#pragma once

#import <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

QUELBY_SINCE(13.0)
@interface SMAppService : NSObject
@property(class, readonly) SMAppService* mainAppService;
- (BOOL)registerAndReturnError:(NSError* _Nullable* _Nullable)error;
- (BOOL)unregisterAndReturnError:(NSError* _Nullable* _Nullable)error;
@end

#pragma clang assume_nonnull end
