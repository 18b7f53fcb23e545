// Included before everything: GNUstep has no start of a day, and no words for a date.
#pragma once

#ifdef __OBJC__
#import <Foundation/Foundation.h>

@interface NSCalendar (StartOfDay)
- (NSDate*)startOfDayForDate:(NSDate*)date;
@end

@interface NSRelativeDateTimeFormatter : NSObject {
    NSString* language_;
}
- (void)setLocale:(NSLocale*)locale;
- (NSString*)localizedStringForDate:(NSDate*)date relativeToDate:(NSDate*)reference;
@end
#endif
