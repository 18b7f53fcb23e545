#import "macos/doubles/app_kit_state.h"

using namespace quelby::fake;

@implementation NSWindow

- (void)makeKeyWindow {
    note("makeKeyWindow");
}

- (BOOL)isVisible {
    return appKit().itemsHaveRoom ? YES : NO;
}

- (NSRect)convertRectToScreen:(NSRect)rect {
    return NSOffsetRect(rect, 1000, 876);
}

@end

@implementation NSView

- (instancetype)initWithFrame:(NSRect)frame {
    self = [super init];
    _frame = frame;
    _bounds = NSMakeRect(0, 0, frame.size.width, frame.size.height);
    _sub_views = [[NSMutableArray alloc] init];
    return self;
}

- (void)dealloc {
    [_sub_views release];
    [super dealloc];
}

- (void)addSubview:(NSView*)view {
    [_sub_views addObject:view];
}

- (NSArray*)subviews {
    return [[_sub_views copy] autorelease];
}

- (void)standIn:(NSWindow*)window {
    _window = window;
}

- (NSWindow*)window {
    return _window;
}

- (NSRect)frame {
    return _frame;
}

- (NSRect)bounds {
    return _bounds;
}

- (BOOL)isFlipped {
    return appKit().viewsAreFlipped ? YES : NO;
}

- (NSAppearance*)effectiveAppearance {
    return [ShownAppearance thatIsDark:_window == nil ? appKit().systemIsDark : appKit().menuBarIsDark];
}

- (void)viewDidChangeEffectiveAppearance {
}

- (NSRect)convertRect:(NSRect)rect toView:(NSView*)view {
    demand(view == nil, "a conversion to another view");
    return rect;
}

@end

// A template of the system's is one for all: it must be marked each time.
@interface SymbolImage : NSImage {
@public
    Image look_;
}
@end

@implementation NSImage

+ (instancetype)imageWithSystemSymbolName:(NSString*)name accessibilityDescription:(NSString*)description {
    demand(name != nil, "no name of a symbol");
    if (appKit().missingSymbols.contains(text(name))) {
        return nil;
    }
    SymbolImage* const image = [[[SymbolImage alloc] init] autorelease];
    image->look_ = {text(name), text(description)};
    return image;
}

@end

@implementation SymbolImage

- (void)setTemplate:(BOOL)isTemplate {
    look_.isTemplate = isTemplate != NO;
}

@end

@implementation NSControl
@end

@implementation NSButton
@end

@implementation NSStatusBarButton
@end

@interface BarButton : NSStatusBarButton {
@public
    SymbolImage* image_;
    NSString* title_;
    NSString* toolTip_;
    id target_; // not retained, as on a real system
    SEL action_;
    NSInteger mask_;
}
@end

@implementation BarButton

- (instancetype)init {
    self = [super initWithFrame:NSMakeRect(0, 0, 60, 24)];
    static NSWindow* const window = [[NSWindow alloc] init];
    [self standIn:appKit().buttonsAreInWindows ? window : nil];
    title_ = @"";
    mask_ = NSEventMaskLeftMouseUp;
    return self;
}

- (void)dealloc {
    [image_ release];
    [title_ release];
    [toolTip_ release];
    [super dealloc];
}

- (void)setImage:(NSImage*)image {
    demand([image isKindOfClass:[SymbolImage class]] != NO, "an image that is no symbol");
    [image retain];
    [image_ release];
    image_ = static_cast<SymbolImage*>(image);
}

- (void)setTitle:(NSString*)title {
    demand(title != nil, "no title");
    [title_ autorelease];
    title_ = [title copy];
}

- (void)setToolTip:(NSString*)toolTip {
    [toolTip_ autorelease];
    toolTip_ = [toolTip copy];
}

- (void)setImagePosition:(NSCellImagePosition)position {
    note(position == NSImageLeading ? "setImagePosition leading" : "setImagePosition another");
}

- (void)setTarget:(id)target {
    note(target == nil ? "setTarget nil" : "setTarget");
    target_ = target;
}

- (void)setAction:(SEL)action {
    note("setAction " + text(NSStringFromSelector(action)));
    action_ = action;
}

- (NSInteger)sendActionOn:(NSInteger)mask {
    const NSInteger former = mask_;
    mask_ = mask;
    return former;
}

@end

@interface BarItem : NSStatusItem {
    NSStatusBarButton* button_;
}
@end

@implementation NSStatusItem
@end

@implementation BarItem

- (instancetype)init {
    self = [super init];
    button_ = appKit().itemsHaveButtons ? [[BarButton alloc] init] : nil;
    state().button = button_;
    return self;
}

- (void)dealloc {
    state().button = nil;
    [button_ release];
    [super dealloc];
}

- (NSStatusBarButton*)button {
    return button_;
}

@end

@implementation NSStatusBar

+ (NSStatusBar*)systemStatusBar {
    static NSStatusBar* const bar = [[NSStatusBar alloc] init];
    return bar;
}

// The bar itself does not keep the item: whoever wants it retains it.
- (NSStatusItem*)statusItemWithLength:(CGFloat)length {
    note("statusItemWithLength " + number(length));
    ++state().items;
    return [[[BarItem alloc] init] autorelease];
}

- (void)removeStatusItem:(NSStatusItem*)item {
    demand(item != nil, "no item to be removed");
    --state().items;
}

@end

namespace quelby::fake {

namespace {

BarButton* barButton() {
    return static_cast<BarButton*>(state().button);
}

NSEvent* eventOf(Press how) {
    return [NSEvent ofType:how == Press::secondary ? NSEventTypeRightMouseUp : NSEventTypeLeftMouseUp
                     flags:how == Press::primaryWithControl ? NSEventModifierFlagControl : 0
                characters:nil];
}

} // namespace

Button button() {
    @autoreleasepool {
        const BarButton* const made = barButton();
        Button button{.title = text(made->title_), .toolTip = text(made->toolTip_)};
        if (made->image_ != nil) {
            button.image = made->image_->look_;
        }
        button.hasTarget = made->target_ != nil;
        return button;
    }
}

void press(Press how) {
    @autoreleasepool {
        BarButton* const pressed = barButton();
        const NSInteger mask = how == Press::secondary ? NSEventMaskRightMouseUp : NSEventMaskLeftMouseUp;
        if (pressed->target_ == nil || (pressed->mask_ & mask) == 0) {
            return;
        }
        state().currentEvent = eventOf(how);
        [pressed->target_ performSelector:pressed->action_ withObject:pressed];
        state().currentEvent = nil;
    }
}

} // namespace quelby::fake
