#pragma once

#include <utility>

#include <unistd.h>

namespace quelby {

// The one owner of an open file.
class FileDescriptor {
public:
    FileDescriptor() = default;

    explicit FileDescriptor(int number) : number_(number) {}

    FileDescriptor(FileDescriptor&& other) noexcept : number_(std::exchange(other.number_, none)) {}

    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    ~FileDescriptor() { close(); }

    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        if (this != &other) {
            close();
            number_ = std::exchange(other.number_, none);
        }
        return *this;
    }

    [[nodiscard]] bool isOpen() const { return number_ != none; }

    [[nodiscard]] int number() const { return number_; }

    void close() {
        if (const int open = std::exchange(number_, none); open != none) {
            ::close(open);
        }
    }

private:
    static constexpr int none = -1;

    int number_ = none;
};

} // namespace quelby
