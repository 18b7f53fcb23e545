// Classes of AppKit by name alone, for headers that C++ includes as well.
#pragma once

#ifdef __OBJC__
@class NSStatusBarButton;
@class NSView;
#else
class NSStatusBarButton;
class NSView;
#endif
