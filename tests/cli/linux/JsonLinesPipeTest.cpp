// The lines of `marlo-cli plugins --format jsonl` in a pipe, while the program still reads.

#include <cstdint>
#include <fcntl.h>
#include <filesystem>
#include <poll.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "tests/cli/CliTest.h"

namespace marlo {
namespace {

using test::Program;

/// A pipe with a name, to be read.
class Pipe {
  public:
    /// Waits for somebody who writes to it.
    explicit Pipe(const std::string& path) : handle_(open(path.c_str(), O_RDONLY | O_CLOEXEC)) {}
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
    Pipe(Pipe&&) = delete;
    Pipe& operator=(Pipe&&) = delete;
    ~Pipe() { close(handle_); }

    /// Reads a line with its end; less where the pipe ends, or nothing comes any more.
    std::string ReadLine() const {
        constexpr int longest = 9000;  // milliseconds
        std::string line;
        pollfd pipe{handle_, POLLIN, 0};
        for (char c = 0; !line.ends_with('\n'); line += c)
            if (poll(&pipe, 1, longest) != 1 || read(handle_, &c, 1) != 1)
                break;
        return line;
    }

  private:
    int handle_;
};

using JsonLinesPipeTest = test::CliTest;

TEST_F(JsonLinesPipeTest, TheFirstProjectIsThereWhileTheNextIsRead) {
    const std::string first = AddProject("a.cpr", {{.name = "Delay"}, {.name = "Echo"}});
    // To read all its zeros takes minutes.
    const std::string endless = folder.Write("songs/b.cpr", "");
    std::filesystem::resize_file(endless, std::uintmax_t{1} << 40U);
    const std::string out = folder.Path("out");
    ASSERT_EQ(mkfifo(out.c_str(), 0600), 0);
    auto program = Program::Start(
        {"/bin/sh", "-c", "exec '" MARLO_CLI "' plugins --format jsonl \"$@\" >'" + out + "'", "sh",
         first, endless});
    const Pipe pipe(out);
    const std::string start = "{\"project\": \"" + first + "\", \"plugin\": ";
    const std::string end = ", \"type\": \"VST\", \"state\": \"On\"}\n";
    EXPECT_EQ(pipe.ReadLine(), start + "\"Delay\"" + end);
    EXPECT_EQ(pipe.ReadLine(), start + "\"Echo\"" + end);
    EXPECT_TRUE(program.IsRunning());
}

}  // namespace
}  // namespace marlo
