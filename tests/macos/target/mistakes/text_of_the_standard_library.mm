// Refused: cannot initialize a parameter of type 'NSString \* _Nonnull'

#include <string>

#import <AppKit/AppKit.h>

void show(NSButton* button, const std::string& title) {
    [button setTitle:title.c_str()];
}
