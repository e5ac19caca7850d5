// What has happened, one line for each event, in the file controls-journal.txt beside the program.
#pragma once

#include <string>

namespace journal {

void write(const std::string& line);

} // namespace journal
