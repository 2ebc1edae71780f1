#pragma once

namespace marlo::test {

/// Whether the system can be told to refuse calls.
bool CanRefuseCalls();
constexpr const char* kNoRefusedCalls = "calls of the system cannot be refused here";

/// Lets the system refuse a call from now on, in this process and for good.
/// @param number the call's, `SYS_...`.
/// @param error what it fails with, `E...`.
void RefuseCall(long number, int error);

}  // namespace marlo::test
