#pragma once

#include <memory>
#include <string>
#include <vector>

namespace marlo::test {

/// Files that another program holds for as long as this lives: they can be read, but neither
/// deleted nor replaced. What else is in their folder is free.
class HeldFiles {
  public:
    /// @param paths files in one folder.
    explicit HeldFiles(const std::vector<std::string>& paths);
    HeldFiles(const HeldFiles&) = delete;
    HeldFiles& operator=(const HeldFiles&) = delete;
    HeldFiles(HeldFiles&&) = delete;
    HeldFiles& operator=(HeldFiles&&) = delete;
    ~HeldFiles();

    /// Whether this user can hold files.
    static bool ArePossible();

    /// Lets one of the files go.
    void Free(const std::string& path);

  private:
    struct Hold;
    std::unique_ptr<Hold> hold_;
};

/// A file that this process may not read for as long as this lives: another program has it for
/// itself, or its permissions are against it.
class UnreadableFile {
  public:
    explicit UnreadableFile(const std::string& path);
    UnreadableFile(const UnreadableFile&) = delete;
    UnreadableFile& operator=(const UnreadableFile&) = delete;
    UnreadableFile(UnreadableFile&&) = delete;
    UnreadableFile& operator=(UnreadableFile&&) = delete;
    ~UnreadableFile();

  private:
    struct Hold;
    std::unique_ptr<Hold> hold_;
};

constexpr const char* kNoHeldFiles = "needs files that belong to another user";

}  // namespace marlo::test
