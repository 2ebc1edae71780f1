#include "platform/windows/WindowsError.h"

#include "platform/windows/System.h"

namespace marlo::platform {

namespace {

std::errc MeaningOf(unsigned long number) {
    switch (number) {
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_DRIVE:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
        case ERROR_NOT_READY:
            return std::errc::no_such_file_or_directory;
        case ERROR_ACCESS_DENIED:
            return std::errc::permission_denied;
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_USER_MAPPED_FILE:
            return std::errc::device_or_resource_busy;
        case ERROR_WRITE_PROTECT:
            return std::errc::read_only_file_system;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
            return std::errc::no_space_on_device;
        case ERROR_FILE_TOO_LARGE:
            return std::errc::file_too_large;
        case ERROR_FILE_EXISTS:
        case ERROR_ALREADY_EXISTS:
            return std::errc::file_exists;
        case ERROR_INVALID_NAME:
        case ERROR_INVALID_PARAMETER:
        case ERROR_NO_UNICODE_TRANSLATION:
            return std::errc::invalid_argument;
        case ERROR_FILENAME_EXCED_RANGE:
        case ERROR_BUFFER_OVERFLOW:
            return std::errc::filename_too_long;
        case ERROR_DIRECTORY:
            return std::errc::not_a_directory;
        case ERROR_CANT_RESOLVE_FILENAME:
            return std::errc::too_many_symbolic_link_levels;
        case ERROR_NOT_ENOUGH_MEMORY:
        case ERROR_OUTOFMEMORY:
            return std::errc::not_enough_memory;
        default:
            return std::errc::io_error;
    }
}

}  // namespace

std::error_code WindowsError(unsigned long number) {
    return number == ERROR_SUCCESS ? std::error_code() : std::make_error_code(MeaningOf(number));
}

std::error_code LastWindowsError() {
    return WindowsError(GetLastError());
}

}  // namespace marlo::platform
