// The common file dialogs: a caller sets properties, shows a dialog and reads the chosen path.
//
// The strings are held in the form that the platform wants, with their NULs. An object serves one dialog:
// after it the buffer is only as long as the path, and a caller makes a new object or sets the start name
// again.
#pragma once

#include "platform/comdlg32.h"
#include "platform/types.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace setup {

class ObjFiledialog {
  public:
    /// A failure to find the current folder is shown, and tried again for as long as it lasts.
    ObjFiledialog();

    void setDefaultExt(std::string_view extension);
    void setDialogTitle(std::string_view title);
    /// The start name. Makes room for a chosen path of 512 characters.
    void setFilename(std::string_view name);
    /// The chosen path; empty after a cancel or a failure. Before a dialog, the start name with its NULs.
    const std::string& Filename() const { return fileName_; }
    /// Pairs of display text and pattern, each ended by NUL; stands ahead of the numbered pairs.
    void setFilter(std::string_view filter);
    // A numbered pair is offered if neither half of it is empty.
    void setFilter1Text(std::string_view text) { filterText_[1] = text; }
    void setFilter2Text(std::string_view text) { filterText_[2] = text; }
    void setFilter3Text(std::string_view text) { filterText_[3] = text; }
    void setFilter4Text(std::string_view text) { filterText_[4] = text; }
    void setFilter5Text(std::string_view text) { filterText_[5] = text; }
    void setFilter1Suffix(std::string_view suffix) { filterSuffix_[1] = suffix; }
    void setFilter2Suffix(std::string_view suffix) { filterSuffix_[2] = suffix; }
    void setFilter3Suffix(std::string_view suffix) { filterSuffix_[3] = suffix; }
    void setFilter4Suffix(std::string_view suffix) { filterSuffix_[4] = suffix; }
    void setFilter5Suffix(std::string_view suffix) { filterSuffix_[5] = suffix; }
    /// The platform's dialog flags; 0 leaves the choice to the class.
    void setFlags(std::int32_t flags) { flags_ = flags; }
    void setInitDir(std::string_view folder);

    /// Show a dialog owned by `hWnd` and give the chosen path, or the empty string. A failure is shown, and
    /// the step that failed is tried again for as long as it fails.
    std::string ShowOpen(platform::HWND hWnd);
    std::string ShowSave(platform::HWND hWnd);

  private:
    friend struct ObjFiledialogTest; ///< no caller of the class ever has an unknown intention

    std::string buildFilter();
    void CheckFlags(std::string_view intention);
    std::string show(platform::HWND hWnd, const std::string& filterList, const char* errorTitle,
                     int (*dialog)(platform::OPENFILENAMEA&));

    std::string dialogTitle_;
    std::string filter_;
    std::int32_t flags_ = 0;
    std::string defaultExt_;
    std::string initDir_;
    std::array<std::string, 6> filterText_; ///< index 1 to 5
    std::array<std::string, 6> filterSuffix_;
    std::string fileName_;
};

} // namespace setup
