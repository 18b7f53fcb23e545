#include "platform/macos/processor_count.h"

#import <Foundation/Foundation.h>

namespace quelby {

std::int64_t configuredProcessors() {
    @autoreleasepool {
        return static_cast<std::int64_t>([[NSProcessInfo processInfo] processorCount]);
    }
}

} // namespace quelby
