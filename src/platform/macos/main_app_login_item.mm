#include "platform/macos/main_app_login_item.h"

#import <Foundation/Foundation.h>
#import <ServiceManagement/ServiceManagement.h>

namespace quelby {

bool MainAppLoginItem::registerProgram() {
    @autoreleasepool {
        return [[SMAppService mainAppService] registerAndReturnError:nullptr] != NO;
    }
}

bool MainAppLoginItem::unregisterProgram() {
    @autoreleasepool {
        return [[SMAppService mainAppService] unregisterAndReturnError:nullptr] != NO;
    }
}

} // namespace quelby
