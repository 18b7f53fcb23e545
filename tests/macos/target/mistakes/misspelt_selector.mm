// Refused: undeclared selector 'togglePopove:'

#import <Foundation/Foundation.h>

SEL action() {
    return @selector(togglePopove:);
}
