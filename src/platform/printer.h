// The default printer as a device for text, page by page.
#pragma once

#include <string_view>

namespace platform {

/// Prints one line, with stops of the tab every eight columns; the first line begins a job, and a full page
/// makes room for the next one. Error 482 if there is no printer or it fails; the job is given up then.
void printLine(std::string_view line);

/// Ends the job and has it printed. Does nothing if there is none. Error 482 if the printer fails.
void endPrintJob();

} // namespace platform
