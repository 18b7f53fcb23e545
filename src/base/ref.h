#pragma once

#include <memory>

namespace quelby {

// A reference that can be made to refer to another object. Never null; whoever made the object owns it.
template <typename T>
class Ref {
public:
    Ref(T& object) : object_(std::addressof(object)) {} // an object can stand where a Ref is asked for

    [[nodiscard]] T& operator*() const { return *object_; }

    [[nodiscard]] T* operator->() const { return object_; }

private:
    T* object_;
};

} // namespace quelby
