#pragma once

#include <exception>
#include <string>
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
std::string DescriptionOf(ErrorNumber number);

/// A failure inside a routine. Routines do not let it out: each one's boundary logs it and ends
/// the way that the routine promises (see `LogFailure` in ErrorLog.h).
class RunTimeError : public std::exception {
  public:
    explicit RunTimeError(ErrorNumber number);
    /// A failure with a text of its own in place of the number's usual one.
    RunTimeError(ErrorNumber number, std::string description);

    ErrorNumber Number() const { return number_; }
    const std::string& Description() const { return description_; }
    const char* what() const noexcept override { return description_.c_str(); }

  private:
    ErrorNumber number_;
    std::string description_;
};

/// Throws the failure that `error` stands for, if it stands for one.
/// @param error what a platform routine reported about a file or folder.
void ThrowOn(const std::error_code& error);

/// The same where only a folder can be what was not found, the one to open or the one to create a
/// file in: "Path not found" takes the place of "File not found".
void ThrowOnPath(const std::error_code& error);

/// The exception being handled as a failure with a number. Memory that ran out is "Out of memory";
/// any other exception is an "Invalid procedure call", with its own text if it has one.
/// To be called inside a catch block only.
RunTimeError CurrentFailure();

}  // namespace marlo
