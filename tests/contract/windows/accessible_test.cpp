// What a screen reader is told of our windows.
#include "calculator/frmMil.h"
#include "contract/windows/nativeBar.h"
#include "contract/world.h"
#include "forms/toolbarLayout.h"
#include "win32/common/native.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <oleacc.h>

#include <string>
#include <vector>

namespace {

using contract::World;

/// IID_IAccessible. The compiler's 64-bit library has another number under that name.
constexpr IID accessible{0x618736E0, 0x3C3D, 0x11CF, {0x81, 0x0C, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71}};

/// The name of a window, or of a part of it (from 1), as the system's interface for screen readers gives it.
std::string toldName(HWND window, LONG part = CHILDID_SELF) {
    const HRESULT prepared = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    void* found = nullptr;
    std::string name = "no object";
    if (SUCCEEDED(AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), accessible, &found))) {
        auto* const object = static_cast<IAccessible*>(found);
        VARIANT child{};
        child.vt = VT_I4;
        child.lVal = part;
        BSTR text = nullptr;
        name = object->get_accName(child, &text) == S_OK ? "" : "no name";
        for (const wchar_t* letter = text; letter != nullptr && *letter != L'\0'; ++letter)
            name += static_cast<char>(*letter);
        SysFreeString(text);
        object->Release();
    }
    if (SUCCEEDED(prepared))
        CoUninitialize();
    return name;
}

std::string buttonText(forms::Toolbar& bar, int command) {
    std::string text(256, '\0');
    const LRESULT length = contract::ask(bar, TB_GETBUTTONTEXTA, static_cast<WPARAM>(command),
                                         reinterpret_cast<LPARAM>(text.data()));
    return length < 0 ? "none" : text.substr(0, static_cast<std::size_t>(length));
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/accessible");

TEST_CASE("the calculator's fields are met in the order of the Tab key, each under its own unit") {
    const World world;
    calculator::frmMil form;
    form.load();
    form.labUnit[0].setCaption("Inch");
    form.labUnit[1].setCaption("um");
    form.show();
    std::vector<HWND> met;
    for (HWND child = GetWindow(win32::native(form.fraMil.hWnd()), GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT))
        met.push_back(child);
    const std::vector<HWND> wanted = {
        win32::native(form.labUnit[1].hWnd()), win32::native(form.txtSize[1].hWnd()),
        win32::native(form.labUnit[0].hWnd()), win32::native(form.txtSize[0].hWnd())};
    CHECK(met == wanted);
    CHECK(toldName(win32::native(form.txtSize[0].hWnd())) == "Inch");
    CHECK(toldName(win32::native(form.txtSize[1].hWnd())) == "um");
}

TEST_CASE("a toolbar's button has its tool tip as name, which is nowhere to be seen") {
    const World world;
    contract::BarForm form;
    form.setClientWidth(80);
    const std::vector<std::string> tips = {"Drill & mill", "A tip that is much wider than its button", ""};
    for (const std::string& tip : tips)
        form.bar.addButton("", "", forms::ButtonStyle::standard, 0).toolTipText = tip;
    form.bar.addButton("", "", forms::ButtonStyle::separator, 0);
    form.bar.addButton("", "", forms::ButtonStyle::standard, 0).toolTipText = "Configuration";
    form.load();
    form.show();
    const forms::ToolbarLayout model =
        forms::layoutToolbar(form.bar.buttons(), forms::Resolution().toPixels(form.bar.width()));
    const forms::ToolbarMetrics sizes(form.resolution());
    for (std::size_t index : {0U, 1U, 2U, 4U}) {
        const RECT place = contract::placeOf(form.bar, index);
        CHECK(place.left == model.places[index].left);
        CHECK(place.top == model.places[index].top);
        CHECK(place.right - place.left == sizes.buttonWidth);
        CHECK(place.bottom - place.top == sizes.buttonHeight);
    }
    CHECK(buttonText(form.bar, 1) == tips[0]);
    CHECK(buttonText(form.bar, 2) == tips[1]);
    CHECK(buttonText(form.bar, 5) == "Configuration");
    // Known gap: under Wine a toolbar tells a screen reader nothing of its buttons.
    if (contract::worldKind() == contract::WorldKind::windows)
        CHECK(toldName(contract::controlOf(form.bar), 5) == "Configuration");
}

TEST_SUITE_END();
