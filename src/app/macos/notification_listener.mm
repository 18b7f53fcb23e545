#include "app/macos/notification_listener.h"

#include <utility>

@implementation QuelbyNotificationTarget

- (instancetype)initWithListener:(std::function<void()>)heard {
    self = [super init];
    if (self != nil) {
        heard_ = std::move(heard);
    }
    return self;
}

- (void)notified:(NSNotification*)notification {
    heard_();
}

@end

namespace quelby::app {

NotificationListener::NotificationListener(NSString* name, NSObject* object, std::function<void()> heard)
    : NotificationListener([NSNotificationCenter defaultCenter], name, object, std::move(heard)) {}

NotificationListener::NotificationListener(NSNotificationCenter* center, NSString* name, NSObject* object,
                                           std::function<void()> heard)
    : center_(center), target_([[QuelbyNotificationTarget alloc] initWithListener:std::move(heard)]) {
    [center_ addObserver:target_.get() selector:@selector(notified:) name:name object:object];
}

NotificationListener::~NotificationListener() {
    [center_ removeObserver:target_.get()];
}

} // namespace quelby::app
