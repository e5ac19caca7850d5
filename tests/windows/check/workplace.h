// The temporary folder that everything is played in, and the programs that run there. A program is ours if it
// stands in that folder.
#pragma once
#include <windows.h>

#include <string>

namespace workplace {

// Of the folder, in the user's temporary one.
inline constexpr wchar_t folderName[] = L"kestrel-check";

bool isOurs(DWORD process);
bool isOurs(HWND window);

// A program that was started.
class Process {
  public:
    Process(HANDLE handle, DWORD id) : handle_(handle), id_(id) {}
    ~Process();
    Process(Process&& other) noexcept : handle_(other.handle_), id_(other.id_) { other.handle_ = nullptr; }
    Process& operator=(Process&&) = delete;
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    [[nodiscard]] DWORD id() const { return id_; }
    [[nodiscard]] bool runs() const;
    // Of one that has ended.
    [[nodiscard]] DWORD exitCode() const;
    void terminate() const;

  private:
    HANDLE handle_;
    DWORD id_;
};

// Makes the folder, removes it at its end with all programs that run in it. What an earlier one has left
// there goes first.
class Workplace {
  public:
    Workplace();
    ~Workplace();
    Workplace(const Workplace&) = delete;
    Workplace& operator=(const Workplace&) = delete;

    [[nodiscard]] const std::wstring& folder() const { return folder_; }
    [[nodiscard]] std::wstring path(const std::wstring& name) const { return folder_ + L"\\" + name; }

    // Copies a folder with all that is in it, without the mark of the net on each file: Windows has asked the
    // user about these programs once.
    void copy(const std::wstring& from, const std::wstring& name) const;

    // Starts a program of the folder. What it prints goes into a file, if one is named. Throws Failure.
    [[nodiscard]] Process start(const std::wstring& name, const std::wstring& arguments = L"",
                                const std::wstring& output = L"") const;

    // Ends what still runs here and removes the folder. False if something of it stays.
    bool clear() const;

  private:
    std::wstring folder_;
    HANDLE job_;
};

} // namespace workplace
