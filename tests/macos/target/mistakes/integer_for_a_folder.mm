// Refused: no matching function for call to 'NSSearchPathForDirectoriesInDomains'

#import <Foundation/Foundation.h>

NSArray<NSString*>* libraries() {
    return NSSearchPathForDirectoriesInDomains(5, NSUserDomainMask, YES);
}
