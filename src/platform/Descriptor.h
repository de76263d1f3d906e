#pragma once

#include <unistd.h>

namespace lumora {

/// A file descriptor that is closed at the end of the scope; -1 for an open that failed.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor()
    {
        if (number_ >= 0) close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int Number() const { return number_; }
    bool Failed() const { return number_ < 0; }

private:
    int number_;
};

} // namespace lumora
