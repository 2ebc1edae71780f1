#pragma once

#include <chrono>
#include <string>
#include <sys/types.h>
#include <vector>

namespace marlo::test {

/// What a program left when it ended.
struct ProgramResult {
    int exitCode = -1;  ///< 128 + the signal's number when a signal ended it
    std::string out;
    std::string error;
};

/// Runs a program to its end, without a terminal.
/// @param arguments the program's path first.
ProgramResult Run(const std::vector<std::string>& arguments);

/// A running program; killed and waited for, if need be, when this goes out of scope.
class Program {
  public:
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    Program(Program&&) = delete;
    Program& operator=(Program&&) = delete;
    ~Program();

    /// Starts a program whose output nobody reads.
    static Program Start(const std::vector<std::string>& arguments);

    /// Starts a program in a terminal of 80 columns that it has for all three streams.
    static Program StartInTerminal(const std::vector<std::string>& arguments);

    void Send(int signal) const;
    /// Types into the terminal.
    void Type(const std::string& text) const;
    /// Reads what the program writes to the terminal until `text` has come by, or it ends.
    /// @return everything read since the start.
    const std::string& ReadUntil(const std::string& text);
    /// Reads to the program's end. @return everything read since the start.
    const std::string& ReadAll();

    bool IsRunning() const;

    /// Waits for the end. @return as `ProgramResult::exitCode`.
    int Wait();

  private:
    Program(pid_t process, int terminal) : process_(process), terminal_(terminal) {}

    pid_t process_;
    int terminal_;  ///< -1 without a terminal
    std::string read_;
};

}  // namespace marlo::test
