// Refused: messaging unqualified id

#import <Foundation/Foundation.h>

bool flag(NSString* key) {
    const id value = [[NSUserDefaults standardUserDefaults] objectForKey:key];
    return [value boolValue] != NO;
}
