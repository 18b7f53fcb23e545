#include "platform/local_day.h"

#import <Foundation/Foundation.h>

namespace quelby {

double startOfLocalDay(double moment) {
    @autoreleasepool {
        NSCalendar* const calendar = [NSCalendar currentCalendar];
        NSDate* const date = [NSDate dateWithTimeIntervalSince1970:moment];
        return [[calendar startOfDayForDate:date] timeIntervalSince1970];
    }
}

} // namespace quelby
