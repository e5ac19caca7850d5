// What the user has in the clipboard, kept while the tests use it. If nobody has put anything there it stays
// as it is, and so it does if it could not be read: another program held it. Formats of other programs' own
// are lost otherwise.
#pragma once
#include <windows.h>

#include <string>
#include <vector>

class KeptClipboard {
  public:
    KeptClipboard();
    ~KeptClipboard();
    KeptClipboard(const KeptClipboard&) = delete;
    KeptClipboard& operator=(const KeptClipboard&) = delete;

    // Empty if there was no text.
    [[nodiscard]] std::wstring text() const;

  private:
    struct Content {
        UINT format;
        std::string bytes;
    };
    std::vector<Content> contents_;
    bool read_ = false;
    DWORD number_ = 0; // the system's, of the change before the tests
};
