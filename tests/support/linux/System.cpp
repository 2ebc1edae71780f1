#include "tests/support/System.h"

#include <csignal>
#include <cstdlib>
#include <ctime>
#include <exception>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <sys/resource.h>
#include <unistd.h>

namespace marlo::test {

namespace {

constexpr uid_t kNobody = 65534;

/// The most memory that this process has had so far, in bytes.
std::size_t PeakMemory() {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;)
        if (word == "VmHWM:") {
            std::size_t kibibytes = 0;
            status >> kibibytes;
            return kibibytes * 1024;
        }
    throw std::runtime_error("the system does not tell of this process's memory");
}

}  // namespace

void SetVariable(const std::string& name, const std::string& value) {
    setenv(name.c_str(), value.c_str(), 1);
    tzset();
}

void ClearVariable(const std::string& name) {
    unsetenv(name.c_str());
    tzset();
}

bool MoveToCentralEurope() {
    SetVariable("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
    return true;
}

std::string OddName() {
    return "Chorus, \"live\"\n\xE9";
}

bool MakeLink(const std::string& target, const std::string& path) {
    std::filesystem::create_symlink(target, path);
    return true;
}

bool CanTellLinks() {
    return true;
}

void RemoveTree(const std::filesystem::path& folder) {
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}

bool CanBeOrdinaryUser() {
    return true;
}

FileSizeLimit::FileSizeLimit(std::size_t size) {
    (void)std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{.rlim_cur = size, .rlim_max = RLIM_INFINITY};
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
        throw std::runtime_error("cannot limit the size of files");
}

FileSizeLimit::~FileSizeLimit() {
    const rlimit all{.rlim_cur = RLIM_INFINITY, .rlim_max = RLIM_INFINITY};
    if (setrlimit(RLIMIT_FSIZE, &all) != 0)
        std::terminate();
    (void)std::signal(SIGXFSZ, SIG_DFL);
}

bool FileSizeLimit::IsPossible() {
    return true;
}

std::size_t MemoryTakenBy(const std::function<void()>& action) {
    // What the process had before may have been more.
    std::ofstream("/proc/self/clear_refs") << 5;
    const std::size_t before = PeakMemory();
    action();
    return PeakMemory() - before;
}

bool CanLimitMemory() {
    return !kIsSanitized;  // AddressSanitizer takes terabytes of addresses for its own use
}

bool HasUnixShell() {
    return true;
}

OrdinaryUser::OrdinaryUser() {
    if (getuid() == 0 && seteuid(kNobody) != 0)
        throw std::runtime_error("cannot become an ordinary user");
}

OrdinaryUser::~OrdinaryUser() {
    if (getuid() == 0 && seteuid(0) != 0)
        std::terminate();
}

}  // namespace marlo::test
