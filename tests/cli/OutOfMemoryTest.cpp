// What the terminal program does when memory runs out outside of any routine of the logic.

#include <string>

#include <gtest/gtest.h>

#include "tests/cli/CliTest.h"
#include "tests/support/System.h"

namespace marlo {
namespace {

class OutOfMemoryTest : public test::CliTest {
  protected:
    /// Runs the program with so much memory that it may take.
    test::ProgramResult MarloWithin(int kibibytes, const std::string& arguments) const {
        return test::Run({"/bin/sh", "-c",
                          "ulimit -c 0; ulimit -v " + std::to_string(kibibytes) + "; exec " +
                              MARLO_CLI + " --app-folder '" + folder.Path("app") + "' " +
                              arguments});
    }
};

TEST_F(OutOfMemoryTest, AReportThatDoesNotFitIsAFailureThatIsSaid) {
    if (!test::CanLimitMemory())
        GTEST_SKIP() << test::kNoMemoryLimit;
    std::string installed;
    for (int i = 0; i < 20000; ++i) {
        const std::string number = std::to_string(i);
        installed.append("\"VST\",\"Effect ").append(number);
        installed.append("\",\"/vst/").append(number).append(".dll\"\r\n");
    }
    folder.Write("app/resultfiles/installedplugins.csv", installed);
    const std::string said = "marlo-cli: Out of memory\n";
    constexpr int step = 1024;
    constexpr int most = 1 << 20;
    int least = step;
    while (least < most && MarloWithin(least, "--version").exitCode != 0)
        least += step;
    int endings = 0;  // of the program as a whole
    for (const std::string format : {"table", "csv", "json", "html"}) {
        int exitCode = -1;
        for (int limit = least; exitCode != 0 && limit < most; limit += step) {
            const auto result = MarloWithin(limit, "report installed --format " + format);
            exitCode = result.exitCode;
            if (exitCode == 0)
                continue;
            EXPECT_EQ(exitCode, 1) << format << " in " << limit << ": " << result.error;
            EXPECT_NE(result.error.find("Out of memory"), std::string::npos) << result.error;
            endings += result.error.ends_with(said) ? 1 : 0;
        }
        EXPECT_EQ(exitCode, 0) << format;
    }
    EXPECT_GT(endings, 0);
}

}  // namespace
}  // namespace marlo
