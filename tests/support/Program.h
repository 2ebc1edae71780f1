#pragma once

#include <memory>
#include <string>
#include <vector>

namespace marlo::test {

/// What a program left when it ended.
struct ProgramResult {
    int exitCode = -1;  ///< more than 128 when something else ended it
    std::string out;
    std::string error;
};

/// Runs a program to its end, without a terminal.
/// @param arguments the program's path first.
/// @param workingFolder where it runs; empty for where the test does.
ProgramResult Run(const std::vector<std::string>& arguments, const std::string& workingFolder = "");

/// A running program; killed and waited for, if need be, when this goes out of scope.
class Program {
  public:
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    Program(Program&& other) noexcept;
    Program& operator=(Program&&) = delete;
    ~Program();

    /// Starts a program whose output nobody reads.
    static Program Start(const std::vector<std::string>& arguments);

    /// Starts a program in a terminal of 80 columns that it has for all three streams, where there
    /// are terminals as there are on Unix.
    static Program StartInTerminal(const std::vector<std::string>& arguments);

    /// Ends the program at once, whatever it is doing.
    void Kill();
    /// Asks it to stop, as the interrupt key does.
    void Interrupt();
    /// Types into the terminal.
    void Type(const std::string& text);
    /// Reads what the program writes to the terminal until `text` has come by, or it ends.
    /// @return everything read since the start.
    const std::string& ReadUntil(const std::string& text);
    /// Reads to the program's end. @return everything read since the start.
    const std::string& ReadAll();

    bool IsRunning();

    /// Waits for the end. @return as `ProgramResult::exitCode`.
    int Wait();

  private:
    struct Process;

    explicit Program(std::unique_ptr<Process> process);

    std::unique_ptr<Process> process_;
    std::string read_;
};

}  // namespace marlo::test
