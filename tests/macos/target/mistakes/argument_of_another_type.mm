// Refused: string literal must be prefixed

#import <Foundation/Foundation.h>

NSURL* pane() {
    return [NSURL URLWithString:"x-apple.systempreferences:"];
}
