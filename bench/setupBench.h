// The setup dialog with many rows, beside the least that such work can cost.
#pragma once

namespace bench {

/// `count` rounds each, with three lists of `buttons` rows.
void openSetup(int count, int buttons);
void openBare(int count, int buttons);
void okSetup(int count, int buttons);
void okBare(int count, int buttons);

} // namespace bench
