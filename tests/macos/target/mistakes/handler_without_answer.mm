// Refused: cannot initialize a parameter of type 'NSEvent \* _Nullable \(\^ _Nonnull\)

#import <AppKit/AppKit.h>

void listen() {
    [NSEvent addLocalMonitorForEventsMatchingMask:NSEventMaskKeyDown
                                          handler:^(NSEvent*){
                                          }];
}
