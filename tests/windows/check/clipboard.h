// What the user has in the clipboard, kept while the tests use it.
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
};
