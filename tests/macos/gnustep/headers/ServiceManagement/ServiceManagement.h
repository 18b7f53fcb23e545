// What GNUstep does not have; as in our own headers of the frameworks.
#pragma once

#import <Foundation/Foundation.h>

@interface SMAppService : NSObject
+ (SMAppService*)mainAppService;
- (BOOL)registerAndReturnError:(NSError**)error;
- (BOOL)unregisterAndReturnError:(NSError**)error;
@end
