"""Whether mistakes in our declarations are found: makes all of these at once in a copy, each in a declaration of its own.

Usage: check_test.py FACADE FACTS README C_HEADERS... What must come of it are complaints about these declarations, and about
no others.
"""

import shutil
import sys
import tempfile
from pathlib import Path

from check import complaints, read_facts
from declarations import Declarations

FOUNDATION = "Foundation/Foundation.h"
APPKIT = "AppKit/AppKit.h"
CORE_FOUNDATION = "CoreFoundation/CoreFoundation.h"
IOKIT = "IOKit/IOKitLib.h"
SERVICES = "ServiceManagement/ServiceManagement.h"

# What kind of mistake; where; what it makes of what; and the declarations that are wrong then.
MISTAKES = [
    ("misspelt selector", APPKIT, "- (void)performClose:", "- (void)performClosing:",
     ["-[NSPopover performClosing:]", "-[NSPopover performClose:]"]),
    ("selector without its last part", FOUNDATION, "\n             object:(nullable id)object;", ";",
     ["-[NSNotificationCenter addObserver:selector:name:]", "-[NSNotificationCenter addObserver:selector:name:object:]"]),
    ("argument of another class", APPKIT, "- (void)addItem:(NSMenuItem*)item", "- (void)addItem:(NSMenu*)item",
     ["-[NSMenu addItem:]"]),
    ("argument of another width", FOUNDATION, "length:(NSUInteger)length", "length:(unsigned int)length",
     ["-[NSString initWithBytes:length:encoding:]"]),
    ("arguments in another order", APPKIT, "(NSRect)rect ofView:(NSView*)view", "(NSView*)view ofView:(NSRect)rect",
     ["-[NSPopover showRelativeToRect:ofView:preferredEdge:]"]),
    ("enumeration of another class as an argument", APPKIT, "setActivationPolicy:(NSApplicationActivationPolicy)policy",
     "setActivationPolicy:(NSEventType)policy", ["-[NSApplication setActivationPolicy:]"]),
    ("enumeration of another class as a property", APPKIT, "@property NSPopoverBehavior behavior",
     "@property NSCellImagePosition behavior", ["-[NSPopover behavior]", "-[NSPopover setBehavior:]"]),
    ("constant of another enumeration", APPKIT, "    NSImageTrailing = 8,\n} NSCellImagePosition;",
     "} NSCellImagePosition;\n\ntypedef enum NSImagePlace : NSUInteger { NSImageTrailing = 8 } NSImagePlace;",
     ["constant NSImageTrailing", "width of NSImagePlace", "sort of NSImagePlace"]),
    ("another value of a constant", APPKIT, "NSPopoverBehaviorTransient = 1", "NSPopoverBehaviorTransient = 3",
     ["constant NSPopoverBehaviorTransient"]),
    ("another shift of a mask", APPKIT, "NSEventModifierFlagCommand = 1 << 20", "NSEventModifierFlagCommand = 1 << 19",
     ["constant NSEventModifierFlagCommand"]),
    ("number in place of an enumeration", CORE_FOUNDATION,
     "typedef enum CFNumberType : CFIndex { kCFNumberSInt64Type = 4 } CFNumberType;",
     "typedef CFIndex CFNumberType;\nenum { kCFNumberSInt64Type = 4 };",
     ["constant kCFNumberSInt64Type", "width of CFNumberType", "sort of CFNumberType"]),
    ("enumeration of another width", FOUNDATION, "NSRectEdge : NSUInteger", "NSRectEdge : NSInteger", ["width of NSRectEdge"]),
    ("argument that may not be null", APPKIT, "inView:(nullable NSView*)view", "inView:(NSView*)view",
     ["-[NSMenu popUpMenuPositioningItem:atLocation:inView:]"]),
    ("argument that may be null", FOUNDATION, "removeObserver:(id)observer", "removeObserver:(nullable id)observer",
     ["-[NSNotificationCenter removeObserver:]"]),
    ("result that may not be null", APPKIT, "+ (nullable instancetype)imageWith", "+ (instancetype)imageWith",
     ["+[NSImage imageWithSystemSymbolName:accessibilityDescription:]"]),
    ("result that may be null", APPKIT, "- (NSStatusItem*)statusItemWithLength", "- (nullable NSStatusItem*)statusItemWithLength",
     ["-[NSStatusBar statusItemWithLength:]"]),
    ("property that may not be null", APPKIT, "nullable) NSStatusBarButton* button", ") NSStatusBarButton* button",
     ["-[NSStatusItem button]"]),
    ("failure that nobody may leave out", SERVICES, "registerAndReturnError:(NSError* _Nullable* _Nullable)error;\n- (BOOL)unreg",
     "registerAndReturnError:(NSError* _Nullable* _Nonnull)error;\n- (BOOL)unreg", ["-[SMAppService registerAndReturnError:]"]),
    ("answer of a block that may not be null", APPKIT, "(NSEvent* _Nullable (^)(NSEvent* event))", "(NSEvent* (^)(NSEvent* event))",
     ["+[NSEvent addLocalMonitorForEventsMatchingMask:handler:]"]),
    ("class method as the instance's", APPKIT, "+ (void)removeMonitor:", "- (void)removeMonitor:",
     ["-[NSEvent removeMonitor:]", "+[NSEvent removeMonitor:]"]),
    ("instance's method as the class's", FOUNDATION, "- (NSDate*)startOfDayForDate", "+ (NSDate*)startOfDayForDate",
     ["+[NSCalendar startOfDayForDate:]", "-[NSCalendar startOfDayForDate:]"]),
    ("another parent", APPKIT, "@interface NSButton : NSControl", "@interface NSButton : NSView", ["parent of NSButton"]),
    ("setter that does not exist", FOUNDATION, "@property(readonly) NSUInteger processorCount", "@property NSUInteger processorCount",
     ["property -NSProcessInfo.processorCount", "-[NSProcessInfo setProcessorCount:]",
      "ownership of NSProcessInfo.processorCount"]),
    ("another ownership", APPKIT, "@property(copy) NSString* title", "@property(strong) NSString* title",
     ["ownership of NSButton.title"]),
    ("another name of a getter", APPKIT, "getter=isFlipped) BOOL flipped", "getter=flipped) BOOL flipped",
     ["-[NSView flipped]", "-[NSView isFlipped]", "property -NSView.flipped"]),
    ("fields in another order", FOUNDATION, "    CGFloat width;\n    CGFloat height;\n", "    CGFloat height;\n    CGFloat width;\n",
     ["struct CGSize"]),
    ("function with arguments in another order", IOKIT, "(mach_port_t mainPort, CFDictionaryRef _Nullable matching)",
     "(CFDictionaryRef _Nullable matching, mach_port_t mainPort)", ["function IOServiceGetMatchingService"]),
    ("function with another result", CORE_FOUNDATION, "Boolean CFPreferencesAppSynchronize", "void CFPreferencesAppSynchronize",
     ["function CFPreferencesAppSynchronize"]),
    ("another number of a length", APPKIT, "NSVariableStatusItemLength = -1.0", "NSVariableStatusItemLength = -3.0",
     ["variable NSVariableStatusItemLength"]),
    ("availability that is not said", APPKIT, "- (void)activate QUELBY_SINCE(14.0);", "- (void)activate;",
     ["since -[NSApplication activate]"]),
    ("availability that is too early", SERVICES, "QUELBY_SINCE(13.0)", "QUELBY_SINCE(12.0)", ["since SMAppService"]),
    ("declaration that nobody has looked up", APPKIT, "- (void)makeKeyWindow;", "- (void)makeKeyWindow;\n- (void)makeMainWindow;",
     ["-[NSWindow makeMainWindow]"]),
    ("declaration that has gone", APPKIT, "- (void)viewDidChangeEffectiveAppearance QUELBY_SINCE(10.14);\n", "",
     ["-[NSView viewDidChangeEffectiveAppearance]", "since -[NSView viewDidChangeEffectiveAppearance]"]),
]


def seed(facade, kind, header, right, wrong):
    path = Path(facade) / header
    text = path.read_text(encoding="utf-8")
    if text.count(right) != 1:
        sys.exit(f"check_test.py: {kind}: \"{right}\" is {text.count(right)} times in {header}")
    path.write_text(text.replace(right, wrong), encoding="utf-8")


def main():
    facade, table, readme, *c_headers = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        copy = shutil.copytree(facade, Path(folder) / "facade")
        for kind, header, right, wrong, _ in MISTAKES:
            seed(copy, kind, header, right, wrong)
        declared = Declarations(copy, c_headers).rows
    found = {title for title, _ in complaints(declared, read_facts(table), Path(readme).read_text(encoding="utf-8"))}
    wanted = {title for *_, titles in MISTAKES for title in titles}
    for kind, *_, titles in MISTAKES:
        if not set(titles) <= found:
            print(f"not found: {kind}, of {', '.join(sorted(set(titles) - found))}")
    for title in sorted(found - wanted):
        print(f"found where there is none: {title}")
    print(f"{len(MISTAKES)} mistakes")
    return 0 if found == wanted else 1


if __name__ == "__main__":
    sys.exit(main())
