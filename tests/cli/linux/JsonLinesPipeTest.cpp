// The lines of `marlo-cli plugins --format jsonl` in a pipe, while the program still reads.

#include <fcntl.h>
#include <poll.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "tests/cli/CliTest.h"

namespace marlo {
namespace {

using test::Program;

/// An end of a pipe, which has a name.
class Pipe {
  public:
    Pipe(const std::string& path, int flags) : handle_(open(path.c_str(), flags | O_CLOEXEC)) {}
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
    Pipe(Pipe&&) = delete;
    Pipe& operator=(Pipe&&) = delete;
    ~Pipe() { close(handle_); }

    /// Puts as much in as the pipe can hold, so that whoever writes next waits for a reader.
    std::size_t Fill() const {
        const auto size = static_cast<std::size_t>(fcntl(handle_, F_GETPIPE_SZ));
        const std::string filling(size, '.');
        EXPECT_EQ(write(handle_, filling.data(), size), static_cast<ssize_t>(size));
        return size;
    }

    /// Reads up to an end, or to that of the pipe; gives up where nothing comes.
    std::string ReadTo(const std::string& end) const {
        std::string text;
        pollfd pipe{handle_, POLLIN, 0};
        constexpr int longest = 9000;  // milliseconds
        for (char c = 0; !text.ends_with(end); text += c)
            if (poll(&pipe, 1, longest) != 1 || read(handle_, &c, 1) != 1)
                break;
        return text;
    }

  private:
    int handle_;
};

using JsonLinesPipeTest = test::CliTest;

TEST_F(JsonLinesPipeTest, TheFirstProjectIsThereBeforeTheNextIsDone) {
    const std::string first = AddProject("a.cpr", {{.name = "Delay"}});
    const std::string gone = folder.Path("songs/gone.cpr");
    const std::string last = AddProject("c.cpr", {{.name = "Echo"}});
    for (const std::string name : {"out", "complaints"})
        ASSERT_EQ(mkfifo(folder.Path(name).c_str(), 0600), 0);
    // The second project cannot be read, and that cannot be said before somebody reads what was
    // said: the program is not done with it until then.
    const Pipe complaints(folder.Path("complaints"), O_RDWR);
    const std::size_t filled = complaints.Fill();
    auto program = Program::Start({"/bin/sh", "-c",
                                   "exec '" MARLO_CLI "' plugins --format jsonl '" + first + "' '" +
                                       gone + "' '" + last + "' >'" + folder.Path("out") + "' 2>'" +
                                       folder.Path("complaints") + "'"});
    const Pipe out(folder.Path("out"), O_RDONLY);
    EXPECT_EQ(out.ReadTo("\n"), "{\"project\": \"" + first +
                                    "\", \"plugin\": \"Delay\", \"type\": \"VST\", \"state\": "
                                    "\"On\"}\n");
    EXPECT_TRUE(program.IsRunning());

    const std::string said = complaints.ReadTo("\n");
    EXPECT_EQ(said.substr(filled),
              "marlo-cli: GetPlugins4Project " + gone + " : File not found (error 53)\n");
    EXPECT_EQ(out.ReadTo("\n").find("{\"project\": \"" + last + "\", \"plugin\": \"Echo\""), 0U);
    EXPECT_EQ(out.ReadTo("\n"), "") << "there are no others";
    EXPECT_EQ(program.Wait(), 1);
}

}  // namespace
}  // namespace marlo
