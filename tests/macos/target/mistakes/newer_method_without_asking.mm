// Refused: 'activate' is only available on macOS 14.0 or newer

#import <AppKit/AppKit.h>

void comeInFront() {
    [[NSApplication sharedApplication] activate];
}
