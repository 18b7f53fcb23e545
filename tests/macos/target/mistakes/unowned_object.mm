// Refused: implicitly-deleted copy constructor of 'quelby::CoreFoundationOwner

#include "platform/macos/core_foundation_owner.h"

quelby::CoreFoundationOwner<CFStringRef> copied(const quelby::CoreFoundationOwner<CFStringRef>& text) {
    return text;
}
