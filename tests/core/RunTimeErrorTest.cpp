#include <cerrno>
#include <ios>
#include <new>
#include <stdexcept>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "core/RunTimeError.h"

namespace marlo {
namespace {

using namespace std::string_literals;

ErrorNumber NumberOf(std::errc condition, void (*throwOn)(const std::error_code&)) {
    try {
        throwOn(std::make_error_code(condition));
    } catch (const RunTimeError& failure) {
        EXPECT_STREQ(failure.what(), DescriptionOf(failure.Number()));
        return failure.Number();
    }
    return ErrorNumber::None;
}

TEST(RunTimeErrorTest, NoErrorThrowsNothing) {
    EXPECT_NO_THROW(ThrowOn(std::error_code()));
    EXPECT_NO_THROW(ThrowOnPath(std::error_code()));
}

TEST(RunTimeErrorTest, ErrorsOfThePlatformHaveTheirNumbers) {
    const std::vector<std::pair<std::errc, ErrorNumber>> expected = {
        {std::errc::not_enough_memory, ErrorNumber::OutOfMemory},
        {std::errc::invalid_argument, ErrorNumber::BadFileName},
        {std::errc::filename_too_long, ErrorNumber::BadFileName},
        {std::errc::no_such_file_or_directory, ErrorNumber::FileNotFound},
        {std::errc::io_error, ErrorNumber::DeviceIo},
        {std::errc::no_space_on_device, ErrorNumber::DiskFull},
        {std::errc::file_too_large, ErrorNumber::DiskFull},
        {std::errc::permission_denied, ErrorNumber::PermissionDenied},
        {std::errc::device_or_resource_busy, ErrorNumber::PermissionDenied},
        {std::errc::operation_not_permitted, ErrorNumber::PermissionDenied},
        {std::errc::text_file_busy, ErrorNumber::PermissionDenied},
        {std::errc::file_exists, ErrorNumber::PathFileAccess},
        {std::errc::invalid_seek, ErrorNumber::PathFileAccess},
        {std::errc::too_many_symbolic_link_levels, ErrorNumber::PathFileAccess},
        {std::errc::too_many_files_open, ErrorNumber::DeviceIo},
        {std::errc::is_a_directory, ErrorNumber::PathFileAccess},
        {std::errc::read_only_file_system, ErrorNumber::PathFileAccess},
        {std::errc::not_a_directory, ErrorNumber::PathNotFound},
    };
    for (const auto& [condition, number] : expected)
        EXPECT_EQ(NumberOf(condition, ThrowOn), number) << static_cast<int>(condition);
}

#ifdef EDQUOT
TEST(RunTimeErrorTest, AQuotaThatIsUsedUpIsAFullDisk) {
    EXPECT_EQ(NumberOf(static_cast<std::errc>(EDQUOT), ThrowOn), ErrorNumber::DiskFull);
}
#endif

TEST(RunTimeErrorTest, WhatIsNoErrorOfThePlatformIsADeviceError) {
    try {
        ThrowOn(std::make_error_code(std::io_errc::stream));
        ADD_FAILURE();
    } catch (const RunTimeError& failure) {
        EXPECT_EQ(failure.Number(), ErrorNumber::DeviceIo);
    }
}

/// What the log would tell of an exception: its number and description.
template <class Exception>
std::pair<ErrorNumber, std::string> FailureFor(const Exception& exception) {
    try {
        throw exception;
    } catch (...) {
        const Failure failure = CurrentFailure();
        return {failure.number, failure.description};
    }
}

TEST(RunTimeErrorTest, AnyExceptionIsAFailureWithANumber) {
    EXPECT_EQ(FailureFor(RunTimeError(ErrorNumber::TypeMismatch)),
              std::pair(ErrorNumber::TypeMismatch, "Type mismatch"s));
    EXPECT_EQ(FailureFor(std::bad_alloc()), std::pair(ErrorNumber::OutOfMemory, "Out of memory"s));
    EXPECT_EQ(FailureFor(std::length_error("too long")),
              std::pair(ErrorNumber::OutOfMemory, "Out of memory"s));
    EXPECT_EQ(FailureFor(std::out_of_range("which")),
              std::pair(ErrorNumber::InvalidProcedureCall, "which"s));
    EXPECT_EQ(FailureFor(7),
              std::pair(ErrorNumber::InvalidProcedureCall, "Invalid procedure call"s));
}

TEST(RunTimeErrorTest, WhereAFolderIsLookedForThePathIsNotFound) {
    EXPECT_EQ(NumberOf(std::errc::no_such_file_or_directory, ThrowOnPath),
              ErrorNumber::PathNotFound);
    EXPECT_EQ(NumberOf(std::errc::permission_denied, ThrowOnPath), ErrorNumber::PermissionDenied);
}

TEST(RunTimeErrorTest, EveryNumberHasItsDescription) {
    const std::vector<std::pair<int, std::string>> expected = {
        {5, "Invalid procedure call"},
        {7, "Out of memory"},
        {9, "Subscript out of range"},
        {13, "Type mismatch"},
        {52, "Bad file name or number"},
        {53, "File not found"},
        {57, "Device I/O error"},
        {61, "Disk full"},
        {63, "Bad record number"},
        {70, "Permission denied"},
        {75, "Path/File access error"},
        {76, "Path not found"},
        {91, "Object variable not set"},
        {0, ""},
        {1, ""},
        {35602, "Key is not unique in collection"}};
    for (const auto& [number, description] : expected)
        EXPECT_EQ(DescriptionOf(static_cast<ErrorNumber>(number)), description) << number;
}

}  // namespace
}  // namespace marlo
