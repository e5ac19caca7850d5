// The report: a text file that is written line by line, so that what was seen stays when the check breaks
// off.
#pragma once
#include <windows.h>

#include <string>

class Privacy;

class Report {
  public:
    // `part` of the file's name, by which pictures are named that stand beside it.
    Report(const std::wstring& folder, Privacy& privacy);
    ~Report();
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;

    // False if the folder may not be written to.
    [[nodiscard]] bool opened() const { return file_ != INVALID_HANDLE_VALUE; }
    // Full path of a picture; the report names it.
    std::wstring picture(const std::wstring& name);

    void line(const std::wstring& text);
    // Counts a check and writes what was seen, right or wrong. Gives whether it was right.
    bool check(bool right, const std::wstring& words, const std::wstring& seen);
    // Adds checks that another program has counted.
    void add(int passed, int failed);
    // Writes the last line. Gives the exit code.
    int finish();

  private:
    void removeOldPictures();

    Privacy& privacy_;
    std::wstring beginning_;
    HANDLE file_ = INVALID_HANDLE_VALUE;
    int passed_ = 0;
    int failed_ = 0;
};
