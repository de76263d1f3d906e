#pragma once

#include <stdexcept>
#include <string>

namespace lumora {

/// The classic numbers of run-time errors.
enum class ErrorNumber : int {
    InvalidCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    Subscript = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    BadFileNumber = 52,
    FileNotFound = 53,
    DeviceError = 57,
    DiskFull = 61,
    PastEndOfFile = 62,
    BadRecordNumber = 63,
    TooManyFiles = 67,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
    ObjectNotSet = 91,
};

/// The short text of a number, for instance "Overflow" for 6.
const char* ErrorText(ErrorNumber number);

/// A failure that no routine of the library catches, unless errors are ignored there on purpose.
/// what() is "Run-time error '6': Overflow"; a file in hand follows in brackets.
class RunTimeError : public std::runtime_error {
public:
    explicit RunTimeError(ErrorNumber number, const std::string& file = {});

    ErrorNumber Number() const { return number_; }

private:
    ErrorNumber number_;
};

/// The one way to raise a run-time error. `file` is the path in hand, where there is one.
[[noreturn]] void Raise(ErrorNumber number, const std::string& file = {});

/// Raises what a failed system call on `file` means: 53, 57, 61, 67, 70, 75 or 76.
[[noreturn]] void RaiseFileError(int error_code, const std::string& file);

} // namespace lumora
