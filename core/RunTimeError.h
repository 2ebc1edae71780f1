#pragma once

#include <exception>
#include <system_error>

namespace marlo {

/// The numbers by which failures are known in the error log.
enum class ErrorNumber {
    None = 0,
    InvalidProcedureCall = 5,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    BadFileName = 52,
    FileNotFound = 53,
    DeviceIo = 57,
    DiskFull = 61,
    BadRecordNumber = 63,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
    ObjectNotSet = 91,
    KeyNotUnique = 35602,
};

/// The short English text that belongs to a number, for example "File not found".
const char* DescriptionOf(ErrorNumber number) noexcept;

/// A failure inside a routine. Routines do not let it out: each one's boundary logs it and ends
/// the way that the routine promises (see `LogFailure` in ErrorLog.h). It takes no memory of its
/// own, so that it can be thrown and told when there is none left.
class RunTimeError : public std::exception {
  public:
    explicit RunTimeError(ErrorNumber number) noexcept : number_(number) {}

    ErrorNumber Number() const noexcept { return number_; }
    const char* what() const noexcept override { return DescriptionOf(number_); }

  private:
    ErrorNumber number_;
};

/// Throws the failure that `error` stands for, if it stands for one.
/// @param error what a platform routine reported about a file or folder.
void ThrowOn(const std::error_code& error);

/// The same where only a folder can be what was not found, the one to open or the one to create a
/// file in: "Path not found" takes the place of "File not found".
void ThrowOnPath(const std::error_code& error);

/// What the error log tells of a failure.
struct Failure {
    ErrorNumber number = ErrorNumber::None;
    const char* description = "";  ///< lives as long as the exception that it comes from
};

/// The exception being handled as a failure with a number. Memory that ran out is "Out of memory";
/// any other exception is an "Invalid procedure call", with its own text if it has one.
/// To be called inside a catch block only.
Failure CurrentFailure() noexcept;

}  // namespace marlo
