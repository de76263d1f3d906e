#include "platform/TemporaryName.h"

#include <cerrno>
#include <cinttypes>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <optional>
#include <random>
#include <sstream>
#include <sys/stat.h>
#include <sys/utsname.h>
#include <unistd.h>

namespace lumora {

namespace fs = std::filesystem;

namespace {

struct Maker {
    std::uint64_t place = 0; ///< where its process number means something; 0: not known
    std::int32_t process = 0;
    std::uint64_t start = 0; ///< of the process, in the system's ticks
};

std::string NameOf(const Maker& maker, std::uint64_t unique, const std::string& ending)
{
    char name[100];
    std::snprintf(name, sizeof name, ".lumora-%016" PRIx64 "-%" PRId32 "-%" PRIu64 "-%016" PRIx64,
                  maker.place, maker.process, maker.start, unique);
    return name + ending;
}

std::optional<Maker> MakerIn(const std::string& name)
{
    Maker maker;
    std::uint64_t unique = 0;
    int used = 0;
    if (std::sscanf(name.c_str(), ".lumora-%16" SCNx64 "-%" SCNd32 "-%" SCNu64 "-%16" SCNx64 "%n",
                    &maker.place, &maker.process, &maker.start, &unique, &used) != 4)
        return {};
    const std::string ending = name.substr(static_cast<std::size_t>(used));
    if (ending.empty() || ending.front() != '.' || NameOf(maker, unique, ending) != name) return {};
    return maker;
}

/// When a process began; empty if that is not to be known.
std::optional<std::uint64_t> StartOf(const std::string& process)
{
    constexpr int kFieldsBetween = 19; // from the state, behind the bracketed name, to the start
    std::ifstream file("/proc/" + process + "/stat");
    std::string line;
    std::getline(file, line);
    const std::size_t bracket = line.rfind(')');
    if (bracket == std::string::npos) return {};
    std::istringstream fields(line.substr(bracket + 1));
    std::string skipped;
    for (int k = 0; k < kFieldsBetween; ++k)
        fields >> skipped;
    std::uint64_t start = 0;
    if (!(fields >> start)) return {};
    return start;
}

std::string LinkText(const char* link)
{
    std::error_code missing;
    return fs::read_symlink(link, missing).string();
}

/// One number for this start of this machine and this set of process numbers; 0 if it cannot be
/// told. Machines that were copied while they ran differ in their names.
std::uint64_t Place()
{
    std::ifstream file("/proc/sys/kernel/random/boot_id");
    std::string boot;
    std::getline(file, boot);
    const std::string processes = LinkText("/proc/self/ns/pid");
    // The numbers in another container's /proc would not be ours.
    if (boot.empty() || processes.empty() || LinkText("/proc/self") != std::to_string(getpid()))
        return 0;
    utsname machine = {};
    uname(&machine);
    std::uint64_t hash = 0xCBF29CE484222325; // FNV-1a
    for (const std::string& text :
         {boot, std::string(machine.nodename), processes, LinkText("/proc/self/ns/time")})
        for (const char* c = text.c_str(); c <= text.c_str() + text.size(); ++c) // with its zero
            hash = (hash ^ static_cast<unsigned char>(*c)) * 0x100000001B3;
    return hash;
}

/// Asked for every file of a batch, and always the same but after a fork.
const Maker& ThisProcess()
{
    static Maker self;
    if (self.process == getpid()) return self;
    const std::optional<std::uint64_t> start = StartOf("self");
    self = {start ? Place() : 0, getpid(), start.value_or(0)};
    return self;
}

bool IsGone(const Maker& maker, std::uint64_t place)
{
    if (place == 0 || maker.place != place || maker.process <= 0) return false;
    if (kill(maker.process, 0) != 0 && errno == ESRCH) return true;
    // The number may have gone to another process.
    const std::optional<std::uint64_t> start = StartOf(std::to_string(maker.process));
    return start && *start != maker.start;
}

bool IsOurFile(const fs::path& path)
{
    struct stat status = {};
    return lstat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
           status.st_uid == geteuid();
}

} // namespace

std::string TemporaryBeside(const std::string& target, const std::string& ending)
{
    std::random_device random;
    const std::uint64_t unique = std::uint64_t{random()} << 32 | random();
    return (fs::path(target).parent_path() / NameOf(ThisProcess(), unique, ending)).string();
}

void RemoveAbandoned(const std::string& folder)
{
    const std::uint64_t place = Place();
    std::error_code failure;
    for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end;
         entry.increment(failure)) {
        const std::optional<Maker> maker = MakerIn(entry->path().filename().string());
        if (maker && IsGone(*maker, place) && IsOurFile(entry->path()))
            unlink(entry->path().c_str());
    }
}

} // namespace lumora
