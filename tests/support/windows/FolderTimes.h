#pragma once

#include <string>

namespace marlo::test {

/// Keeps Wine's folder picker from overlooking a folder: it recognises one by its times, and that
/// of the last access changes when the picker itself looks into a folder that has just changed.
/// After this the times stay, unless another program changes what is in one of the folders.
/// @param path a folder; those that it is in are seen to as well.
void SettleTimes(const std::string& path);

}  // namespace marlo::test
