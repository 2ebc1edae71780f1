#include <gtest/gtest.h>

#include "ui/Pace.h"

namespace marlo {
namespace {

using std::chrono::milliseconds;

const Pace::Moment kStart{milliseconds(1000)};

TEST(PaceTest, TheFirstTimeIsDue) {
    Pace pace;
    EXPECT_TRUE(pace.IsDue(kStart));
}

TEST(PaceTest, WhatComesSoonAfterIsNotDueAndDoesNotPutOffTheNext) {
    Pace pace;
    pace.IsDue(kStart);
    EXPECT_FALSE(pace.IsDue(kStart + milliseconds(1)));
    EXPECT_FALSE(pace.IsDue(kStart + milliseconds(65)));
    EXPECT_TRUE(pace.IsDue(kStart + milliseconds(66)));
    EXPECT_FALSE(pace.IsDue(kStart + milliseconds(67)));
}

}  // namespace
}  // namespace marlo
