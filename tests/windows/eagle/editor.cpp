#include "eagle/editor.h"
#include "common/journal.h"
#include "eagle/chrome.h"
#include "eagle/drawing.h"
#include "eagle/eagle.h"
#include "eagle/guests.h"

#include <map>
#include <memory>

namespace editor {

static constexpr wchar_t frameClass[] = L"EagleEditor";
static constexpr wchar_t canvasClass[] = L"EagleCanvas";

static std::map<int, std::unique_ptr<Editor>> editors;
static int lastId = 0;
static WNDPROC editProc = nullptr;

static Editor* editorOf(HWND window) {
    return reinterpret_cast<Editor*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

static std::wstring textOf(HWND window) {
    std::wstring result(static_cast<size_t>(GetWindowTextLengthW(window)), L'\0');
    GetWindowTextW(window, result.data(), static_cast<int>(result.size()) + 1);
    return result;
}

void execute(Editor& editor, const std::wstring& command) {
    journal::write("execute", {std::to_wstring(editor.id), textOf(editor.frame), command});
    SetWindowTextW(editor.status,
                   ((editor.german ? L" Ausgef\u00FChrt: " : L" Executed: ") + command).c_str());
    eagle::runCommands(command, editor.german);
}

// The command field: what it gets is journaled, Enter runs it.
static LRESULT CALLBACK commandProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    Editor* editor = editorOf(GetParent(window));
    switch (message) {
    case WM_CHAR:
        journal::write("char", {std::to_wstring(editor->id), std::to_wstring(wParam)});
        if (wParam == VK_RETURN) {
            const std::wstring command = textOf(window);
            SetWindowTextW(window, L"");
            execute(*editor, command);
            return 0;
        }
        break;
    case WM_KEYDOWN:
        // Characters that are injected as such come under this key; their WM_CHAR tells them.
        if (wParam != VK_PACKET)
            journal::write("keydown", {std::to_wstring(editor->id), std::to_wstring(wParam)});
        break;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        journal::write(message == WM_SETFOCUS ? "focus" : "focuslost", {std::to_wstring(editor->id)});
        break;
    }
    return CallWindowProcW(editProc, window, message, wParam, lParam);
}

static LRESULT CALLBACK canvasProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_PAINT: {
        PAINTSTRUCT paint;
        const HDC dc = BeginPaint(window, &paint);
        RECT area;
        GetClientRect(window, &area);
        drawing::paint(dc, area, editorOf(GetParent(window))->kind);
        EndPaint(window, &paint);
        return 0;
    }
    case WM_LBUTTONDOWN:
        SetFocus(GetParent(window));
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

static HWND addChild(Editor& editor, const wchar_t* className, const wchar_t* text, DWORD style,
                     DWORD exStyle = 0) {
    const HWND child =
        CreateWindowExW(exStyle, className, text, WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | style, 0, 0, 0, 0,
                        editor.frame, nullptr, GetModuleHandleW(nullptr), nullptr);
    SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), FALSE);
    guests::besideOwn(child);
    return child;
}

static void addChildren(Editor& editor) {
    editor.layer = addChild(editor, L"COMBOBOX", L"", CBS_DROPDOWNLIST | WS_VSCROLL);
    for (const wchar_t* name : {L"1 Top", L"16 Bottom", L"17 Pads", L"20 Dimension", L"21 tPlace"})
        SendMessageW(editor.layer, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name));
    SendMessageW(editor.layer, CB_SETCURSEL, 0, 0);
    editor.coordinates =
        addChild(editor, L"STATIC", L"50 mil (1250 800)", SS_CENTER | SS_CENTERIMAGE | SS_SUNKEN);
    editor.command = addChild(editor, L"EDIT", L"", ES_AUTOHSCROLL, WS_EX_CLIENTEDGE);
    editor.canvas = addChild(editor, canvasClass, L"", 0);
    editor.status = addChild(editor, L"STATIC", L"", SS_LEFTNOWORDWRAP | SS_CENTERIMAGE | SS_SUNKEN);
    editProc = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(editor.command, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(commandProc)));
}

static void layOut(const Editor& editor) {
    RECT client;
    GetClientRect(editor.frame, &client);
    const chrome::Layout places = chrome::layout(client.right, client.bottom);
    const auto put = [](HWND child, const RECT& place) {
        MoveWindow(child, place.left, place.top, place.right - place.left, place.bottom - place.top, TRUE);
    };
    put(editor.layer, places.layer);
    put(editor.coordinates, places.coordinates);
    put(editor.command, places.command);
    put(editor.canvas, places.canvas);
    put(editor.status, places.status);
}

static void journalPlace(const Editor& editor) {
    RECT place;
    GetWindowRect(editor.frame, &place);
    journal::write("place",
                   {std::to_wstring(editor.id), std::to_wstring(place.left), std::to_wstring(place.top),
                    std::to_wstring(place.right), std::to_wstring(place.bottom)});
}

static LRESULT handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* created = static_cast<Editor*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        created->frame = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
    }
    Editor* editor = editorOf(window);
    if (!editor)
        return DefWindowProcW(window, message, wParam, lParam);

    switch (message) {
    case WM_CREATE:
        addChildren(*editor);
        return 0;
    case WM_SIZE:
        layOut(*editor);
        break;
    case WM_EXITSIZEMOVE:
        journalPlace(*editor);
        break;
    case WM_PAINT: {
        PAINTSTRUCT paint;
        const HDC dc = BeginPaint(window, &paint);
        RECT client;
        GetClientRect(window, &client);
        chrome::paint(dc, client.bottom);
        EndPaint(window, &paint);
        return 0;
    }
    case WM_SETFOCUS:
        SetFocus(editor->command);
        return 0;
    case WM_ACTIVATE:
        journal::write(LOWORD(wParam) == WA_INACTIVE ? "deactivated" : "activated",
                       {std::to_wstring(editor->id)});
        break;
    case WM_CHAR: // whatever is typed into the window belongs to the command field
        return SendMessageW(editor->command, message, wParam, lParam);
    case WM_COMMAND:
        if (HIWORD(wParam) == 0 && lParam == 0) {
            journal::write("menu", {std::to_wstring(editor->id), std::to_wstring(LOWORD(wParam))});
            if (LOWORD(wParam) == chrome::closeCommand)
                PostMessageW(window, WM_CLOSE, 0, 0);
        }
        return 0;
    case WM_DESTROY:
        journal::write("closed", {std::to_wstring(editor->id), textOf(window)});
        return 0;
    case WM_NCDESTROY:
        SetWindowLongPtrW(window, GWLP_USERDATA, 0);
        editors.erase(editor->id);
        break;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

static LRESULT CALLBACK frameProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = handle(window, message, wParam, lParam);
    guests::afterMessage(window, message, wParam);
    return result;
}

void registerClasses() {
    WNDCLASSW frame = {};
    frame.lpfnWndProc = frameProc;
    frame.hInstance = GetModuleHandleW(nullptr);
    frame.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    frame.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
    frame.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    frame.lpszClassName = frameClass;
    RegisterClassW(&frame);

    WNDCLASSW canvas = {};
    canvas.style = CS_HREDRAW | CS_VREDRAW;
    canvas.lpfnWndProc = canvasProc;
    canvas.hInstance = GetModuleHandleW(nullptr);
    canvas.hCursor = LoadCursorW(nullptr, IDC_CROSS);
    canvas.lpszClassName = canvasClass;
    RegisterClassW(&canvas);
}

Editor& open(kinds::Kind kind, const std::wstring& title, bool german) {
    auto owned = std::make_unique<Editor>();
    Editor& editor = *owned;
    editor.id = ++lastId;
    editor.kind = kind;
    editor.german = german;
    editors.emplace(editor.id, std::move(owned));

    const int step = (editor.id - 1) % 12 * 30;
    CreateWindowExW(0, frameClass, title.c_str(), WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 40 + step, 40 + step,
                    760, 520, nullptr, chrome::makeMenu(german), GetModuleHandleW(nullptr), &editor);
    ShowWindow(editor.frame, SW_SHOWNORMAL);
    UpdateWindow(editor.frame);
    journal::write("opened", {std::to_wstring(editor.id), kinds::facts(kind).name,
                              std::to_wstring(reinterpret_cast<UINT_PTR>(editor.frame)), title});
    return editor;
}

Editor* find(int id) {
    const auto found = editors.find(id);
    return found == editors.end() ? nullptr : found->second.get();
}

std::vector<int> openIds() {
    std::vector<int> ids;
    for (const auto& [id, editor] : editors)
        ids.push_back(id);
    return ids;
}

} // namespace editor
