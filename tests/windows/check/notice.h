// The small window that tells the user what goes on. Its thread also hears every key: one that was pressed
// and not sent by a program stops the check.
#pragma once
#include <windows.h>

#include <string>
#include <thread>

class Notice {
  public:
    Notice();
    ~Notice();
    Notice(const Notice&) = delete;
    Notice& operator=(const Notice&) = delete;

    // What goes on now, in the last line.
    void say(const std::wstring& line);
    // Clicks on the window: this program is in front then, and may let another one come to the front. Nothing
    // happens where the window cannot be clicked.
    void comeToFront();

  private:
    void run(HANDLE ready);

    HWND window_ = nullptr;
    std::thread thread_;
};
