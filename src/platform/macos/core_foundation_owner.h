#pragma once

#include <memory>
#include <type_traits>

#include <CoreFoundation/CoreFoundation.h>

namespace quelby {

struct ReleaseCoreFoundation {
    void operator()(CFTypeRef object) const { CFRelease(object); }
};

// The one owner of an object that a function with Create or Copy in its name has given; empty where it gave
// none.
template <typename Reference>
using CoreFoundationOwner = std::unique_ptr<std::remove_pointer_t<Reference>, ReleaseCoreFoundation>;

} // namespace quelby
