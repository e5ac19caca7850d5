// What the icon chooser says. Its texts do not stand in the catalogue: where the shell has a chooser of its
// own, nobody sees them.
#pragma once

namespace store {

/// In the ANSI code page.
struct IconChooserTexts {
    const char* title;
    const char* file;
    const char* browse;
    const char* icons;
    const char* onlyTheFirst; ///< stands before the number of icons that are shown
    const char* ok;
    const char* cancel;
    const char* noFile;
    const char* unread;   ///< the file's name has been edited and its icons are not shown yet
    const char* notFound; ///< there is no such file
    const char* noIcons;
    const char* browseTitle;
    const char* iconFiles;
    const char* allFiles;
};

/// In the language that is set at the moment.
const IconChooserTexts& iconChooserTexts();

} // namespace store
