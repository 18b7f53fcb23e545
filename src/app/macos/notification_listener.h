// For Objective-C++ only.
#pragma once

#include <functional>

#import <Foundation/Foundation.h>

#include "platform/macos/own.h"

@interface QuelbyNotificationTarget : NSObject {
    std::function<void()> heard_;
}
- (instancetype)initWithListener:(std::function<void()>)heard;
- (void)notified:(NSNotification*)notification;
@end

namespace quelby::app {

// Hears the notifications of one name from one object, for as long as it lives.
class NotificationListener {
public:
    // From the program's own centre.
    NotificationListener(NSString* name, NSObject* object, std::function<void()> heard);

    // From a centre that outlives the program's windows. No object: from whichever.
    NotificationListener(NSNotificationCenter* center, NSString* name, NSObject* object,
                         std::function<void()> heard);

    NotificationListener(const NotificationListener&) = delete;
    NotificationListener& operator=(const NotificationListener&) = delete;
    ~NotificationListener();

private:
    NSNotificationCenter* center_;
    Own<QuelbyNotificationTarget> target_;
};

} // namespace quelby::app
