#include "base/RunTimeError.h"

#include <cerrno>

namespace lumora {

namespace {

std::string Sentence(ErrorNumber number, const std::string& file)
{
    std::string text =
        "Run-time error '" + std::to_string(static_cast<int>(number)) + "': " + ErrorText(number);
    if (!file.empty()) text += " (" + file + ")";
    return text;
}

ErrorNumber FromErrno(int error_code)
{
    switch (error_code) {
    case ENOENT:
        return ErrorNumber::FileNotFound;
    case ENOTDIR:
        return ErrorNumber::PathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
        return ErrorNumber::PermissionDenied;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return ErrorNumber::DiskFull;
    case EMFILE:
    case ENFILE:
        return ErrorNumber::TooManyFiles;
    case EIO:
        return ErrorNumber::DeviceError;
    default:
        return ErrorNumber::PathFileAccess;
    }
}

} // namespace

const char* ErrorText(ErrorNumber number)
{
    switch (number) {
    case ErrorNumber::InvalidCall:
        return "Invalid call";
    case ErrorNumber::Overflow:
        return "Overflow";
    case ErrorNumber::OutOfMemory:
        return "Out of memory";
    case ErrorNumber::Subscript:
        return "Subscript out of range";
    case ErrorNumber::DivisionByZero:
        return "Division by zero";
    case ErrorNumber::TypeMismatch:
        return "Type mismatch";
    case ErrorNumber::BadFileNumber:
        return "Bad file number";
    case ErrorNumber::FileNotFound:
        return "File not found";
    case ErrorNumber::DeviceError:
        return "Device error";
    case ErrorNumber::DiskFull:
        return "Disk full";
    case ErrorNumber::PastEndOfFile:
        return "Input past end of file";
    case ErrorNumber::BadRecordNumber:
        return "Bad record number";
    case ErrorNumber::TooManyFiles:
        return "Too many files";
    case ErrorNumber::PermissionDenied:
        return "Permission denied";
    case ErrorNumber::PathFileAccess:
        return "Path or file access error";
    case ErrorNumber::PathNotFound:
        return "Path not found";
    case ErrorNumber::ObjectNotSet:
        return "Object not set";
    }
    return "Unknown error";
}

RunTimeError::RunTimeError(ErrorNumber number, const std::string& file)
    : std::runtime_error(Sentence(number, file)), number_(number)
{
}

void Raise(ErrorNumber number, const std::string& file)
{
    throw RunTimeError(number, file);
}

void RaiseFileError(int error_code, const std::string& file)
{
    Raise(FromErrno(error_code), file);
}

} // namespace lumora
