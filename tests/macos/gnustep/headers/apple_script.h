// Included before everything: GNUstep has the class, but none of its methods.
#pragma once

#ifdef __OBJC__
#import <Foundation/Foundation.h>

@interface NSAppleScript (Methods)
- (instancetype)initWithSource:(NSString*)source;
- (NSAppleEventDescriptor*)executeAndReturnError:(NSDictionary**)failure;
@end
#endif
