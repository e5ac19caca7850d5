// The menu of the tray icon.
#pragma once

namespace core {

/// Gives the menu's entries their texts in the current language. Not built yet: there is no menu.
void loadMenuTexts();

} // namespace core
