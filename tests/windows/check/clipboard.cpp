#include "check/clipboard.h"

#include <cstring>

// Another program may hold the clipboard for a moment.
static bool openClipboard() {
    for (int turn = 0; turn < 20; ++turn) {
        if (OpenClipboard(nullptr))
            return true;
        Sleep(50);
    }
    return false;
}

KeptClipboard::KeptClipboard() {
    if (!openClipboard())
        return;
    // Texts, a picture, files. The system makes the other formats of these by itself.
    for (const UINT format :
         {UINT{CF_UNICODETEXT}, UINT{CF_DIB}, UINT{CF_HDROP}, RegisterClipboardFormatW(L"HTML Format"),
          RegisterClipboardFormatW(L"Rich Text Format")}) {
        const HANDLE block = IsClipboardFormatAvailable(format) ? GetClipboardData(format) : nullptr;
        if (const void* bytes = block ? GlobalLock(block) : nullptr) {
            contents_.push_back({format, {static_cast<const char*>(bytes), GlobalSize(block)}});
            GlobalUnlock(block);
        }
    }
    CloseClipboard();
    // A format that its program makes when it is asked for counts as a change.
    number_ = GetClipboardSequenceNumber();
    read_ = true;
}

KeptClipboard::~KeptClipboard() {
    if (!read_ || GetClipboardSequenceNumber() == number_ || !openClipboard())
        return;
    EmptyClipboard();
    for (const Content& content : contents_) {
        const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, content.bytes.size());
        if (!block)
            continue;
        std::memcpy(GlobalLock(block), content.bytes.data(), content.bytes.size());
        GlobalUnlock(block);
        if (!SetClipboardData(content.format, block))
            GlobalFree(block);
    }
    CloseClipboard();
}

std::wstring KeptClipboard::text() const {
    for (const Content& content : contents_) {
        if (content.format == CF_UNICODETEXT) {
            std::wstring text(content.bytes.size() / sizeof(wchar_t), L'\0');
            std::memcpy(text.data(), content.bytes.data(), text.size() * sizeof(wchar_t));
            return text.substr(0, text.find(L'\0'));
        }
    }
    return {};
}
