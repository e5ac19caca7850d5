// What the program keeps in module variables, and the forms that exist once.
#pragma once

namespace desktop {

/// Puts all of it where it is at the start of a process. A Session does so before it and after it.
void resetModules();

} // namespace desktop
