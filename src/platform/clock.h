// The user's calendar and clock.
//
// A date is a number of days since 30 December 1899, with the time of day as its fraction; before that day
// the fraction still counts forwards from midnight. It has whole seconds.
#pragma once

#include <string>

namespace platform {

/// The present date and time of the user's clock.
double now();

/// The day of a date, and its time of day, in the format of the user's settings. Error 5 outside the years
/// 100 to 9999.
std::string dateText(double date);
std::string timeText(double date);

} // namespace platform
