#include "check/stageProgram.h"
#include "check/waiting.h"
#include "common/text.h"

#include <fstream>
#include <iterator>
#include <sstream>

static std::string contentOf(const std::wstring& path) {
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, 0, nullptr);
    std::string content;
    if (file == INVALID_HANDLE_VALUE)
        return content;
    char buffer[4096];
    DWORD count = 0;
    while (ReadFile(file, buffer, sizeof buffer, &count, nullptr) && count > 0)
        content.append(buffer, count);
    CloseHandle(file);
    return content;
}

static std::vector<StageProgram::Event> eventsIn(const std::wstring& journal) {
    std::vector<StageProgram::Event> found;
    std::istringstream lines(contentOf(journal));
    for (std::string line; std::getline(lines, line) && !lines.eof();) { // the last one may not be whole yet
        const std::vector<std::wstring> fields = text::fields(line);
        if (fields.size() >= 3)
            found.push_back({fields[2], {fields.begin() + 3, fields.end()}});
    }
    return found;
}

StageProgram::StageProgram(const workplace::Workplace& place, const std::wstring& folder,
                           const std::wstring& name)
    : journal_(place.path(folder + L"\\" + name + L"-journal.txt")),
      control_(place.path(folder + L"\\" + name + L"-control.txt")), name_(text::narrow(name)),
      process_(place.start(folder + L"\\" + name + L".exe")) {
    if (!waiting::until([this] { return !events(L"ready").empty(); }))
        throw waiting::Failure(name_ + ".exe does not come up");
}

std::vector<StageProgram::Event> StageProgram::events(const std::wstring& name) const {
    std::vector<Event> found = eventsIn(journal_);
    std::erase_if(found, [&](const Event& event) { return event.name != name; });
    return found;
}

std::optional<StageProgram::Event> StageProgram::answerTo(const std::wstring& number) const {
    for (const Event& event : eventsIn(journal_)) {
        if ((event.name == L"done" || event.name == L"failed") && !event.words.empty() &&
            event.words[0] == number)
            return event;
    }
    return std::nullopt;
}

std::wstring StageProgram::order(std::initializer_list<std::wstring> words) {
    const std::wstring number = std::to_wstring(++orders_);
    std::string line = text::narrow(number);
    for (const std::wstring& word : words)
        line += '\t' + text::escaped(word);
    line += '\n';
    const HANDLE file =
        CreateFileW(control_.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ, nullptr, OPEN_ALWAYS, 0, nullptr);
    DWORD written = 0;
    WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
    CloseHandle(file);

    std::optional<Event> answer;
    if (!waiting::until([&] { return (answer = answerTo(number)).has_value(); }))
        throw waiting::Failure(name_ + ".exe does not answer: " + line);
    const std::wstring told = answer->words.size() > 1 ? answer->words[1] : L"";
    if (answer->name == L"failed")
        throw waiting::Failure(name_ + ".exe cannot: " + line + text::narrow(told));
    return told;
}

Eagle::Editor Eagle::open(const std::wstring& kind, const std::wstring& file, const RECT& area) {
    Editor editor{kind, order({L"open", kind, L"en", file}), nullptr};
    for (const Event& event : events(L"opened")) {
        if (event.words[0] == editor.id)
            editor.window = reinterpret_cast<HWND>(static_cast<UINT_PTR>(std::stoull(event.words[2])));
    }
    order({L"place", editor.id, std::to_wstring(area.left), std::to_wstring(area.top),
           std::to_wstring(area.right - area.left), std::to_wstring(area.bottom - area.top)});
    return editor;
}

std::vector<std::wstring> Eagle::executed(const Editor& editor) const {
    std::vector<std::wstring> commands;
    for (const Event& event : events(L"execute")) {
        if (event.words[0] == editor.id)
            commands.push_back(event.words[2]);
    }
    return commands;
}
