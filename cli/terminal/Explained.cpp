#include "cli/terminal/Explained.h"

#include "platform/FaultText.h"

#include <cerrno>

namespace lumora {

std::string Explained(const RunTimeError& error)
{
    switch (error.Number()) {
    case ErrorNumber::DiskFull:
        return "the result does not fit: the disk is full or a limit on file sizes is reached; "
               "make room and run it again";
    case ErrorNumber::OutOfMemory:
        return "there is not enough memory; end other programs and run it again";
    case ErrorNumber::DeviceError:
        return "the disk reports a fault while reading or writing; check it and run it again";
    case ErrorNumber::TooManyFiles:
        return "too many files are open" + Advice(EMFILE);
    default:
        return std::string(error.what()) + "; this should not happen, please report it";
    }
}

} // namespace lumora
