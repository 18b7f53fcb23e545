// For Objective-C++ only, with references counted by hand.
#pragma once

#import <Foundation/Foundation.h>

#if __has_feature(objc_arc)
#error "Objects are retained and released by hand here: compile with -fno-objc-arc."
#endif

namespace quelby {

// The one owner of an object that alloc, new, copy or retain has given; empty where it gave none. T is the
// object's class.
template <typename T>
class Own {
public:
    explicit Own(T* object) : object_(object) {}

    Own(const Own&) = delete;
    Own& operator=(const Own&) = delete;

    ~Own() { [object_ release]; } // harmless where there is none

    [[nodiscard]] T* get() const { return object_; }

private:
    T* object_;
};

} // namespace quelby
