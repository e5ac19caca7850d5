// The setup dialog under measurement, with three lists of 200 buttons.
#pragma once

namespace bench {

/// Opens the dialog, lets it be painted and cancels it, so often.
void openSetup(int count);
/// The same with OK in place of Cancel.
void okSetup(int count);
/// The settings calls that an OK makes, so often.
void okBare(int count);

} // namespace bench
