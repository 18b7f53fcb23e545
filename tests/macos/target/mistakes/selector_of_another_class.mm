// Refused: 'NSBundle' may not respond to 'openURL:'

#import <AppKit/AppKit.h>

void open(NSURL* url) {
    [[NSBundle mainBundle] openURL:url];
}
