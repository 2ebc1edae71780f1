#pragma once

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>

namespace marlo::test {

// What the system under a test does.

/// Sets a variable of this process' environment, which the programs that it starts inherit.
void SetVariable(const std::string& name, const std::string& value);
void ClearVariable(const std::string& name);

/// Makes local time that of central Europe.
/// @return false where it stays what it was when the process began.
bool MoveToCentralEurope();
constexpr const char* kNoCentralEurope = "needs to be started with TZ=Europe/Berlin here";

/// A name for a file with as much in it as a name can have here: a comma, quotes, and where they
/// can be, a line end and a byte that is no text.
std::string OddName();

/// Makes a link to a file or folder. @param target from the link's folder on.
/// @return false where this user cannot make any.
bool MakeLink(const std::string& target, const std::string& path);
constexpr const char* kNoLinks = "links cannot be made here";

/// Whether the system tells a link from what it leads to.
bool CanTellLinks();

/// Deletes a folder with all that is in it, as far as it goes.
void RemoveTree(const std::filesystem::path& folder);

/// Whether a test can be an ordinary user, whom the permissions of files hold back.
bool CanBeOrdinaryUser();
constexpr const char* kNoOrdinaryUser = "permissions hold nobody back here";

/// Whether the tests are built with AddressSanitizer, with which everything takes several times as
/// long.
inline constexpr bool kIsSanitized = MARLO_SANITIZED;

/// Whether a test that repeats something by chance does so as often as it can, which takes minutes,
/// rather than as often as fits into some seconds. The environment variable MARLO_LONG_TESTS asks
/// for it.
inline bool TakesItsTime() {
    return std::getenv("MARLO_LONG_TESTS") != nullptr;
}

/// Lets no file of this process grow beyond a size, as on a disk that is full, for as long as it
/// lives.
class FileSizeLimit {
  public:
    /// @param size in bytes.
    explicit FileSizeLimit(std::size_t size);
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    FileSizeLimit(FileSizeLimit&&) = delete;
    FileSizeLimit& operator=(FileSizeLimit&&) = delete;
    ~FileSizeLimit();

    static bool IsPossible();
};
constexpr const char* kNoFileSizeLimit = "the size of files cannot be limited here";

/// Does something. @return by how much the most memory that this process has had at once grew.
std::size_t MemoryTakenBy(const std::function<void()>& action);

/// Whether a Unix shell can limit the memory of the programs that it starts.
bool CanLimitMemory();
constexpr const char* kNoMemoryLimit = "memory cannot be limited here";

/// Whether programs can be started from a Unix shell and in terminals, and interrupted by a signal.
bool HasUnixShell();
constexpr const char* kNoUnixShell = "there are no Unix shell, terminals and signals here";

/// Makes this process an ordinary user for as long as it lives: the permissions of files, which a
/// super-user passes by, count.
class OrdinaryUser {
  public:
    OrdinaryUser();
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
    OrdinaryUser(OrdinaryUser&&) = delete;
    OrdinaryUser& operator=(OrdinaryUser&&) = delete;
    ~OrdinaryUser();
};

}  // namespace marlo::test
