#include "platform/StopSignals.h"

#include <initializer_list>
#include <sys/signalfd.h>
#include <unistd.h>

namespace lumora {

namespace {

bool IsIgnored(int signal)
{
    struct sigaction action = {};
    return sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

} // namespace

StopSignals::StopSignals()
{
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    sigset_t stops;
    sigemptyset(&stops);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT})
        if (!IsIgnored(signal)) sigaddset(&stops, signal);
    sigprocmask(SIG_BLOCK, &stops, &before_);
    file_ = signalfd(-1, &stops, SFD_NONBLOCK | SFD_CLOEXEC);
}

StopSignals::~StopSignals()
{
    close(file_);
    sigprocmask(SIG_SETMASK, &before_, nullptr);
}

int StopSignals::Take() const
{
    signalfd_siginfo arrived = {};
    if (read(file_, &arrived, sizeof arrived) != sizeof arrived) return 0;
    return static_cast<int>(arrived.ssi_signo);
}

} // namespace lumora
