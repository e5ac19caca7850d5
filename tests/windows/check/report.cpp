#include "check/report.h"
#include "check/privacy.h"
#include "common/text.h"

Report::Report(const std::wstring& folder, Privacy& privacy)
    : privacy_(privacy), beginning_(folder + L"\\kestrel-check"),
      file_(CreateFileW((beginning_ + L".txt").c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                        CREATE_ALWAYS, 0, nullptr)) {
    if (!opened())
        return;
    DWORD written = 0;
    WriteFile(file_, "\xEF\xBB\xBF", 3, &written, nullptr);
    removeOldPictures();
}

Report::~Report() {
    CloseHandle(file_);
}

void Report::removeOldPictures() {
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW((beginning_ + L"-*.png").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return;
    const std::wstring folder = beginning_.substr(0, beginning_.rfind(L'\\') + 1);
    do {
        DeleteFileW((folder + found.cFileName).c_str());
    } while (FindNextFileW(search, &found));
    FindClose(search);
}

std::wstring Report::picture(const std::wstring& name) {
    std::wstring path = beginning_ + L"-" + name + L".png";
    line(L"         picture: " + path.substr(path.rfind(L'\\') + 1));
    return path;
}

void Report::line(const std::wstring& text) {
    const std::string narrow = text::narrow(text) + "\r\n";
    DWORD written = 0;
    WriteFile(file_, narrow.data(), static_cast<DWORD>(narrow.size()), &written, nullptr);
}

bool Report::check(bool right, const std::wstring& words, const std::wstring& seen) {
    (right ? passed_ : failed_) += 1;
    privacy_.addTitles();
    line((right ? L"   ok    " : L"   FAIL  ") + words + L"; seen: " + privacy_.hidden(seen));
    return right;
}

void Report::add(int passed, int failed) {
    passed_ += passed;
    failed_ += failed;
}

int Report::finish() {
    line(L"");
    line(std::to_wstring(passed_) + L" passed, " + std::to_wstring(failed_) + L" failed");
    return failed_ == 0 && passed_ > 0 ? 0 : 1;
}
