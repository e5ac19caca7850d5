// A dialog with the controls of another one, without anything behind them.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace bench {

class BareDialog {
  public:
    /// Reads what stands in a window.
    explicit BareDialog(HWND window);
    ~BareDialog();
    BareDialog(const BareDialog&) = delete;
    BareDialog& operator=(const BareDialog&) = delete;

    /// Makes the same windows with the same rows, shows them until they are painted, and closes them.
    void openAndClose() const;

  private:
    struct Control {
        std::string className;
        std::string text;
        DWORD style;
        DWORD extendedStyle;
        RECT place;         ///< client pixels of the window that it stands in
        std::size_t parent; ///< its place in the list; of the first one nothing
        std::vector<std::string> rows;
    };

    void read(HWND window, std::size_t parent);
    HWND open() const;
    static void addRows(HWND window, const Control& control);

    std::vector<Control> controls_;
    HFONT font_;
};

} // namespace bench
