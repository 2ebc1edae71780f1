#pragma once

#include <string>
#include <system_error>

namespace marlo {

/// The path of a new file that is to take its place when it is complete. The file is deleted when
/// this goes out of scope before. It stays open until it is in place or deleted, so that nobody
/// else takes it for one that is left over.
class StagedPath {
  public:
    /// @param path of a file that was created to be moved.
    explicit StagedPath(std::string path);
    StagedPath(const StagedPath&) = delete;
    StagedPath& operator=(const StagedPath&) = delete;
    StagedPath(StagedPath&&) = delete;
    StagedPath& operator=(StagedPath&&) = delete;
    ~StagedPath();

    /// Moves the file to its place, on the same volume, and replaces one that is there in one step.
    /// @param error cleared, or set when it could not be moved and is where it was.
    void MoveTo(const std::string& place, std::error_code& error);

  private:
    std::string path_;
    bool isInPlace_ = false;
};

}  // namespace marlo
