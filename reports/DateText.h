#pragma once

#include <ctime>
#include <string>

#include "core/Application.h"

namespace marlo {

// The "Last Modified" column shows dates in the general form, "10/28/2006 3:45:12 PM". To be put in
// order as texts they are turned into fourteen digits, "20061028154512", and back.

/// A date and time in the general form.
std::string GeneralDate(const std::tm& moment);

/// A date in the general form as fourteen digits. 12 PM becomes hour 24, and 12 AM stays 12.
/// @return "" for a text that is no date in that form, which is logged under "FormatDate:<text>".
std::string FormatDate(const Application& application, const std::string& text);

/// Fourteen digits as a date in the general form. Every zero in month, day and the morning's hours
/// is dropped, also the one of a 10, and users know the dates that come of it.
/// @return "" after a failure, which is logged under "UnFormatDate:<text>".
std::string UnFormatDate(const Application& application, const std::string& text);

}  // namespace marlo
