#include "platform/local_day.h"

#import <Foundation/Foundation.h>

namespace quelby {

double startOfLocalDay(double moment) {
    @autoreleasepool {
        NSDate* const date = [NSDate dateWithTimeIntervalSince1970:moment];
        return [[[NSCalendar currentCalendar] startOfDayForDate:date] timeIntervalSince1970];
    }
}

} // namespace quelby
