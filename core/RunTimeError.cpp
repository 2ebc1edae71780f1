#include "core/RunTimeError.h"

#include <cerrno>
#include <new>
#include <stdexcept>

namespace marlo {

namespace {

/// A quota that is used up, where a system has quotas; the standard has no name for it.
bool IsQuotaExceeded([[maybe_unused]] const std::error_condition& condition) {
#ifdef EDQUOT
    return condition.value() == EDQUOT;
#else
    return false;
#endif
}

ErrorNumber NumberFor(const std::error_code& error) {
    const std::error_condition condition = error.default_error_condition();
    if (condition.category() != std::generic_category())
        return ErrorNumber::DeviceIo;
    if (IsQuotaExceeded(condition))
        return ErrorNumber::DiskFull;
    switch (static_cast<std::errc>(condition.value())) {
        case std::errc::not_enough_memory:
            return ErrorNumber::OutOfMemory;
        case std::errc::filename_too_long:
        case std::errc::invalid_argument:
            return ErrorNumber::BadFileName;
        case std::errc::no_such_file_or_directory:
            return ErrorNumber::FileNotFound;
        case std::errc::file_too_large:
        case std::errc::no_space_on_device:
            return ErrorNumber::DiskFull;
        case std::errc::device_or_resource_busy:
        case std::errc::operation_not_permitted:
        case std::errc::permission_denied:
        case std::errc::text_file_busy:
            return ErrorNumber::PermissionDenied;
        case std::errc::file_exists:
        case std::errc::invalid_seek:
        case std::errc::is_a_directory:
        case std::errc::read_only_file_system:
        case std::errc::too_many_symbolic_link_levels:
            return ErrorNumber::PathFileAccess;
        case std::errc::not_a_directory:
            return ErrorNumber::PathNotFound;
        default:
            return ErrorNumber::DeviceIo;
    }
}

}  // namespace

const char* DescriptionOf(ErrorNumber number) noexcept {
    switch (number) {
        case ErrorNumber::None:
            return "";
        case ErrorNumber::InvalidProcedureCall:
            return "Invalid procedure call";
        case ErrorNumber::OutOfMemory:
            return "Out of memory";
        case ErrorNumber::SubscriptOutOfRange:
            return "Subscript out of range";
        case ErrorNumber::TypeMismatch:
            return "Type mismatch";
        case ErrorNumber::BadFileName:
            return "Bad file name or number";
        case ErrorNumber::FileNotFound:
            return "File not found";
        case ErrorNumber::DeviceIo:
            return "Device I/O error";
        case ErrorNumber::DiskFull:
            return "Disk full";
        case ErrorNumber::BadRecordNumber:
            return "Bad record number";
        case ErrorNumber::PermissionDenied:
            return "Permission denied";
        case ErrorNumber::PathFileAccess:
            return "Path/File access error";
        case ErrorNumber::PathNotFound:
            return "Path not found";
        case ErrorNumber::ObjectNotSet:
            return "Object variable not set";
        case ErrorNumber::KeyNotUnique:
            return "Key is not unique in collection";
    }
    return "";
}

void ThrowOn(const std::error_code& error) {
    if (error)
        throw RunTimeError(NumberFor(error));
}

void ThrowOnPath(const std::error_code& error) {
    if (error == std::errc::no_such_file_or_directory)
        throw RunTimeError(ErrorNumber::PathNotFound);
    ThrowOn(error);
}

Failure CurrentFailure() noexcept {
    const auto failure = [](ErrorNumber number) { return Failure{number, DescriptionOf(number)}; };
    try {
        throw;
    } catch (const RunTimeError& error) {
        return failure(error.Number());
    } catch (const std::bad_alloc&) {
        return failure(ErrorNumber::OutOfMemory);
    } catch (const std::length_error&) {
        return failure(ErrorNumber::OutOfMemory);
    } catch (const std::exception& error) {
        return {ErrorNumber::InvalidProcedureCall, error.what()};
    } catch (...) {
        return failure(ErrorNumber::InvalidProcedureCall);
    }
}

}  // namespace marlo
