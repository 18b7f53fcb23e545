#import "macos/doubles/app_kit_state.h"

using namespace quelby::fake;

@implementation NSMenuItem

+ (id)separatorItem {
    return [[[NSMenuItem alloc] init] autorelease];
}

- (instancetype)initWithTitle:(NSString*)title action:(SEL)action keyEquivalent:(NSString*)key {
    demand(title != nil && key != nil, "no title or no key of a row");
    self = [super init];
    _title = [title copy];
    _action = action;
    return self;
}

- (void)dealloc {
    [_title release];
    [super dealloc];
}

- (void)setTarget:(id)target {
    _target = target;
}

- (void)setTag:(NSInteger)tag {
    _tag = tag;
}

- (NSInteger)tag {
    return _tag;
}

- (void)setState:(NSInteger)newState {
    _state = newState;
}

- (MenuRow)row {
    return {_title == nil ? "" : text(_title), _state == NSControlStateValueOn};
}

- (void)choose {
    demand(_action != nullptr && [_target respondsToSelector:_action] != NO, "a row that nobody answers");
    [_target performSelector:_action withObject:self];
}

@end

@interface OpenedMenu : NSMenu {
    NSMutableArray* rows_;
}
@end

@implementation NSMenu

+ (instancetype)alloc {
    return NSAllocateObject([OpenedMenu class], 0, nullptr);
}

@end

@implementation OpenedMenu

- (instancetype)initWithTitle:(NSString*)title {
    self = [super init];
    rows_ = [[NSMutableArray alloc] init];
    return self;
}

- (void)dealloc {
    [rows_ release];
    [super dealloc];
}

- (void)addItem:(NSMenuItem*)item {
    [rows_ addObject:item];
}

// Returns when it is closed, after what was chosen in it.
- (BOOL)popUpMenuPositioningItem:(NSMenuItem*)item atLocation:(NSPoint)location inView:(NSView*)view {
    demand(view == state().button, "a menu that is not at the button");
    appKit().menuPlace = number(location.x) + "," + number(location.y);
    appKit().menu.clear();
    NSMenuItem* chosen = nil;
    for (NSMenuItem* row in rows_) {
        appKit().menu.push_back([row row]);
        chosen = [row row].title == appKit().choice ? row : chosen;
    }
    if (appKit().choice.empty() || chosen == nil) {
        return NO;
    }
    [chosen choose];
    return YES;
}

@end
