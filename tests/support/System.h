#pragma once

#include <cstddef>
#include <string>

namespace marlo::test {

// What the system under a test does.

/// Sets a variable of this process' environment, which the programs that it starts inherit.
void SetVariable(const std::string& name, const std::string& value);
void ClearVariable(const std::string& name);

/// Whether "TZ" decides what local time is in this process, and not the machine.
bool CanChooseTimeZone();
constexpr const char* kNoTimeZone = "local time is the same for the whole machine here";

/// Makes a link to a file or folder. @param target from the link's folder on.
/// @return false where this user cannot make any.
bool MakeLink(const std::string& target, const std::string& path);
constexpr const char* kNoLinks = "links cannot be made here";

/// Whether a test can be an ordinary user, whom the permissions of files hold back.
bool CanBeOrdinaryUser();
constexpr const char* kNoOrdinaryUser = "permissions hold nobody back here";

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

/// Whether there are a Unix shell and terminals to start programs with.
bool HasUnixShell();
constexpr const char* kNoUnixShell = "there is no Unix shell here";

/// Makes this process an ordinary user for as long as it lives: the permissions of files, which a
/// super-user passes by, count. Takes effect for this thread only.
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
