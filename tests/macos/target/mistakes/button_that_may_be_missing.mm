// Refused: conversion from nullable pointer

#import <AppKit/AppKit.h>

void show(NSPopover* popover, NSStatusItem* item) {
    NSStatusBarButton* _Nullable const button = [item button];
    [popover showRelativeToRect:[button bounds] ofView:button preferredEdge:NSRectEdgeMinY];
}
