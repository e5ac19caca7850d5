// A program of the stage that takes orders by a file and tells what happens to it in a journal (see orders.h,
// journal.h), from the side of who gives the orders.
#pragma once
#include "check/workplace.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

class StageProgram {
  public:
    struct Event {
        std::wstring name;
        std::vector<std::wstring> words;
    };

    // Starts the program folder\name.exe of the workplace and waits until it takes orders. Throws Failure.
    StageProgram(const workplace::Workplace& place, const std::wstring& folder, const std::wstring& name);

    // What the journal holds so far of this name.
    [[nodiscard]] std::vector<Event> events(const std::wstring& name) const;
    // Gives an order and waits for what it is answered. Throws Failure if it cannot be carried out.
    std::wstring order(std::initializer_list<std::wstring> words);

    [[nodiscard]] const workplace::Process& process() const { return process_; }

  private:
    [[nodiscard]] std::optional<Event> answerTo(const std::wstring& number) const;

    std::wstring journal_;
    std::wstring control_;
    std::string name_;
    int orders_ = 0;
    workplace::Process process_;
};

// The stand-in EAGLE.
class Eagle : public StageProgram {
  public:
    struct Editor {
        std::wstring kind; // as the stand-in calls it
        std::wstring id;
        HWND window;
    };

    Eagle(const workplace::Workplace& place, const std::wstring& folder)
        : StageProgram(place, folder, L"eagle") {}

    // `area` in pixels of a screen of 96 dpi.
    Editor open(const std::wstring& kind, const std::wstring& file, const RECT& area);
    // The commands that an editor has run so far.
    [[nodiscard]] std::vector<std::wstring> executed(const Editor& editor) const;
};
