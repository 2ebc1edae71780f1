#include <gtest/gtest.h>

#include "scan/SearchRun.h"

namespace marlo {
namespace {

TEST(SearchPercentageTest, Of100ProjectsThe29th57thAnd58thShowOneLess) {
    for (int i = 1; i <= 100; ++i) {
        const bool shows1Less = i == 29 || i == 57 || i == 58;
        EXPECT_EQ(SearchPercentage(i, 100), shows1Less ? i - 1 : i) << i;
    }
}

TEST(SearchPercentageTest, FractionsOfAPercentDoNotCount) {
    EXPECT_EQ(SearchPercentage(1, 3), 33);
    EXPECT_EQ(SearchPercentage(2, 3), 66);
    EXPECT_EQ(SearchPercentage(1, 1000), 0);
    EXPECT_EQ(SearchPercentage(999, 1000), 99);
    EXPECT_EQ(SearchPercentage(1000, 1000), 100);
}

}  // namespace
}  // namespace marlo
