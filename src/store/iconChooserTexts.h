// What the icon chooser says. Its texts do not stand in the catalogue: where the shell has a chooser of its
// own, nobody sees them.
#pragma once

#include <string>

namespace store {

/// In the code page in force.
struct IconChooserTexts {
    std::string title;
    std::string file;
    std::string browse;
    std::string icons;
    std::string onlyTheFirst; ///< stands before the number of icons that are shown
    std::string ok;
    std::string cancel;
    std::string noFile;
    std::string unread;   ///< the file's name has been edited and its icons are not shown yet
    std::string notFound; ///< there is no such file
    std::string noIcons;
    std::string browseTitle;
    std::string iconFiles;
    std::string allFiles;
};

/// In the language that is set at the moment.
const IconChooserTexts& iconChooserTexts();

} // namespace store
