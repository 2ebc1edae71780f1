#pragma once

#include <ctime>
#include <filesystem>
#include <string>
#include <string_view>

namespace marlo::test {

/// A path for the standard library, which takes UTF-8 for something else on some systems.
std::filesystem::path PathOf(const std::string& path);

/// A new folder for one test, deleted with everything in it when the test ends.
class TempFolder {
  public:
    TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    TempFolder(TempFolder&&) = delete;
    TempFolder& operator=(TempFolder&&) = delete;
    ~TempFolder();

    /// The full path of `name` in the folder, in the system's form; of the folder itself without a
    /// name.
    std::string Path(const std::string& name = "") const;

    /// Writes a file, making the folders it needs.
    /// @return its full path.
    std::string Write(const std::string& name, std::string_view bytes) const;

    /// Makes a folder. @return its full path.
    std::string MakeFolder(const std::string& name) const;

    /// The bytes of a file; fails the test when there is no such file.
    std::string Read(const std::string& name) const;

    /// Sets a file's last change. @param moment in seconds since 1970, UTC.
    void SetLastChange(const std::string& name, std::time_t moment) const;

    bool Exists(const std::string& name) const;

  private:
    std::filesystem::path Of(const std::string& name) const;

    std::filesystem::path path_;
};

}  // namespace marlo::test
