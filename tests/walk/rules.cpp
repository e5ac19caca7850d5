// What must hold between two events.
#include "walk/walk.h"

#include "core/frmMenu.h"
#include "core/frmSplash.h"
#include "desktop/surfaces.h"
#include "forms/defaultInstance.h"
#include "store/settings.h"
#include "store/state.h"
#include "toolbars/frmPullDown.h"

#include <algorithm>

namespace programWalk {

namespace {

constexpr int toolbarTop = 21;   // pixels
constexpr int frameHeight = 26;  // of a toolbar
constexpr std::size_t fixed = 2; // pictures behind those of the rows
constexpr std::uintptr_t perIcon = 2;
constexpr int patience = 10; // of who has left a request, in ticks

/// The windows of a form that is there.
template <typename Form>
std::size_t windowOf(const std::unique_ptr<Form>& form) {
    return form != nullptr && form->hWnd() != HWND::none ? 1 : 0;
}

} // namespace

void Walk::rule(bool holds, const char* what, const std::string& about) {
    if (!holds && wrong_.empty())
        wrong_ = std::string(what) + (about.empty() ? "" : ": " + about);
}

void Walk::check() {
    rule(expected_.wrong.empty(), expected_.wrong.c_str());
    rule(!desk_.ended, "the program runs on");
    if (!wrong_.empty())
        return;
    checkProgram();
    checkCounts();
    checkHosts();
    for (std::size_t kind = 0; kind < kinds && wrong_.empty(); ++kind)
        checkBars(kind);
    checkCalculators();
    checkWindows();
    checkSettings();
}

void Walk::checkProgram() {
    core::Hauptform& form = program_.form();
    rule(desk_.trayIcon.has_value(), "the tray icon stands");
    rule(desk_.messageBoxes.empty(), "no box came",
         desk_.messageBoxes.empty() ? "" : desk_.messageBoxes.back().text);
    rule(desk_.modalForms.empty(), "no form is modal");
    const std::unique_ptr<setup::frmSetup>& setup = forms::defaultSlot<setup::frmSetup>();
    rule(setup == nullptr || (!setup->visible() && setup->hWnd() == HWND::none), "the setup has gone");
    const bool waits = desk_.file(desk_.programFolder + "\\execute.txt") != nullptr;
    // Both, up to the next tick, where the tray's setup has come and gone while a request waited.
    rule(form.Timer2.enabled() ? !form.Timer1.enabled() || waits : form.Timer1.enabled(),
         "either the tick runs or a request is read");
    rule(!waits || waited_ < patience, "a request is taken");
    rule(desk_.file(desk_.programFolder + "\\kestrel.sav") == nullptr, "a save comes to its end");
}

/// Nothing is left over: no surface, no icon but the large ones, no timer.
void Walk::checkCounts() {
    core::Hauptform& form = program_.form();
    // Of each toolbar one, as soon as it has drawn an icon, and of the latest setup one of each page.
    std::size_t surfaces = kinds;
    for (const std::vector<Bar>& bars : expected_.bars)
        surfaces += static_cast<std::size_t>(std::ranges::count(bars, false, &Bar::dead));
    rule(desktop::surfaceCount() <= surfaces, "no surface is left");
    rule(desk_.icons.size() == (desk_.nextIcon - icons_) / perIcon, "of each extraction one icon is left");
    desk_.icons.clear();
    icons_ = desk_.nextIcon;
    std::size_t timers = 0;
    for (const forms::Timer* timer : {&form.Timer1, &form.Timer2, &form.tmrSystray})
        timers += timer->enabled() ? 1 : 0;
    const std::unique_ptr<core::frmSplash>& splash = forms::defaultSlot<core::frmSplash>();
    timers += splash != nullptr && splash->Timer1.enabled() ? 1 : 0;
    rule(desk_.timers.size() == timers, "no timer is left");
}

void Walk::checkHosts() {
    rule(desk_.disabledHosts.empty() && desk_.foundDisabled.empty(), "no host is held");
    for (const Host& host : expected_.hosts) {
        const desktop::Window& window = desk_.window(host.handle);
        rule(window.enabled, "a host takes the mouse", host.title);
        rule(window.redraw || desk_.hangs(host.handle), "a host draws", host.title);
        rule(window.parent == HWND::none && window.title == host.title, "a host stays as it is", host.title);
    }
}

void Walk::checkBars(std::size_t kind) {
    const core::Toolbars& made = program_.form().toolbarsOf(static_cast<store::EditorKind>(kind));
    const std::vector<Bar>& bars = expected_.bars[kind];
    rule(made.size() == bars.size() + 1, "each recognised window has its entry, and nothing else has",
         std::to_string(made.size() - 1) + " of " + std::to_string(bars.size()));
    // What has died is looked at now and then: it must not come back.
    constexpr int between = 64;
    for (std::size_t index = 0; index < bars.size() && wrong_.empty(); ++index)
        if (!bars[index].dead || played_ % between == 0)
            checkBar(kind, *made[index + 1], bars[index]);
}

void Walk::checkBar(std::size_t kind, toolbars::frmToolbar& toolbar, const Bar& bar) {
    const std::string about = std::to_string(static_cast<std::uintptr_t>(bar.host));
    rule(toolbar.eagHND == bar.host, "an entry names its window", about);
    rule(static_cast<std::size_t>(toolbar.milIndex) == bar.calculator, "an entry names its calculator",
         about);
    const std::deque<forms::ToolbarButton>& buttons = toolbar.toolbar.buttons();
    if (bar.dead) {
        rule(toolbar.hWnd() == HWND::none, "a toolbar dies with its window", about);
        rule(buttons.empty() && toolbar.ImageList1.count() == 0, "what has died gives back what it had",
             about);
        return;
    }
    const desktop::Window* window = desk_.find(toolbar.hWnd());
    rule(window != nullptr, "a live entry has a window", about);
    if (window == nullptr)
        return;
    rule(window->enabled, "a toolbar takes the mouse", about);
    if (bar.refused) {
        rule(window->parent == HWND::none && !window->visible, "what is refused is not seen", about);
        return;
    }
    rule(window->parent == bar.host && window->visible && window->redraw, "a toolbar stands in its window",
         about);
    rule(window->rect.left == bar.left && window->rect.top == toolbarTop, "a toolbar stands at its place",
         about);
    rule(!bar.heightKnown || window->rect.bottom - window->rect.top ==
                                 toolbar.resolution().toPixels(toolbar.toolbar.height()) + frameHeight,
         "a toolbar is as high as its rows", about);
    rule(!buttons.empty() && buttons.back().key == "Config", "the last button opens the setup", about);
    rule(static_cast<std::size_t>(toolbar.ImageList1.count()) + 1 == buttons.size() + fixed,
         "a toolbar has a picture for each row", about);
    const std::vector<Row>& rows = expected_.rows[kind];
    if (!expected_.mended)
        return;
    rule(buttons.size() == rows.size() + 1, "a toolbar has the buttons that are stored", about);
    for (std::size_t row = 0; row < rows.size() && wrong_.empty(); ++row) {
        const bool separator = buttons[row].style == forms::ButtonStyle::separator;
        rule(separator == rows[row].separator && (separator || buttons[row].description == rows[row].name),
             "a toolbar has the buttons that are stored", about + " " + rows[row].name);
    }
}

void Walk::checkCalculators() {
    const core::Calculators& made = program_.form().calculators;
    rule(made.size() == expected_.calculators.size(), "each toolbar has the calculator that the setup asks");
    constexpr int between = 64;
    for (std::size_t index = 1; index < made.size() && wrong_.empty(); ++index) {
        const Calculator& calculator = expected_.calculators[index];
        calculator::frmMil& form = *made[index];
        const std::string about = std::to_string(static_cast<std::uintptr_t>(calculator.host));
        if (calculator.dead) {
            rule(played_ % between != 0 || (form.hWnd() == HWND::none && form.fraMil.hWnd() == HWND::none),
                 "a calculator dies with its window", about);
            continue;
        }
        const desktop::Window* frame = desk_.find(form.fraMil.hWnd());
        rule(frame != nullptr && desk_.find(form.hWnd()) != nullptr, "a calculator has its windows", about);
        if (frame == nullptr)
            return;
        if (calculator.refused) {
            rule(!desk_.isSeen(form.fraMil.hWnd()), "what is refused is not seen", about);
            continue;
        }
        rule(frame->parent == calculator.host && frame->visible, "a calculator stands in its window", about);
        rule(frame->rect.left == calculator.left && frame->rect.top == 0, "a calculator stands at its place",
             about + " at " + std::to_string(frame->rect.left) + ", not " + std::to_string(calculator.left));
        const std::array<std::string, 2> units =
            expected_.mended ? store::unitName : std::array<std::string, 2>{"mil", "mm"};
        for (std::size_t side = 0; side < units.size(); ++side)
            rule(form.labUnit[side].caption() == units[side], "a calculator has its units", about);
    }
}

/// Of the program there is nothing on the desktop but the splash and the slivers of the calculators; and no
/// window that no form has.
void Walk::checkWindows() {
    const std::unique_ptr<core::frmSplash>& splash = forms::defaultSlot<core::frmSplash>();
    for (const HWND handle : desk_.order) {
        const desktop::Window& window = desk_.window(handle);
        if (window.process != desktop::programProcess || !window.visible)
            continue;
        rule(window.rect.right - window.rect.left <= 1 || (splash != nullptr && handle == splash->hWnd()),
             "nothing of the program stands on the desktop", window.title);
    }
    std::size_t windows = expected_.hosts.size();
    for (const auto& [hung, ghost] : ghosts_)
        windows += desk_.find(ghost) != nullptr ? 1 : 0;
    windows += program_.form().hWnd() != HWND::none ? 1 : 0;
    windows += windowOf(forms::defaultSlot<core::frmMenu>()) + windowOf(splash) +
               windowOf(forms::defaultSlot<toolbars::frmPullDown>());
    const std::unique_ptr<calculator::frmMil>& idle = forms::defaultSlot<calculator::frmMil>();
    windows += windowOf(idle) + (idle != nullptr && idle->fraMil.hWnd() != HWND::none ? 1 : 0);
    for (const std::vector<Bar>& bars : expected_.bars)
        windows += static_cast<std::size_t>(std::ranges::count(bars, false, &Bar::dead));
    constexpr std::size_t each = 2; // form and frame
    for (std::size_t index = 1; index < expected_.calculators.size(); ++index)
        windows += expected_.calculators[index].dead ? 0 : each;
    rule(desk_.windowCount() == windows, "no window is left",
         std::to_string(desk_.windowCount()) + ", not " + std::to_string(windows));
}

void Walk::checkSettings() {
    if (const desktop::File* file = desk_.file(desk_.programFolder + "\\kestrel.ini");
        file != nullptr && file->content != settingsText_) {
        settingsText_ = file->content;
        settingsSeen_ = parsed(settingsText_);
    }
    if (settingsSeen_ == expected_.settings || !wrong_.empty())
        return;
    std::string about;
    for (const auto& [key, value] : expected_.settings)
        if (const auto found = settingsSeen_.find(key); found == settingsSeen_.end())
            about.append(key).append(" is missing ");
        else if (found->second != value)
            about.append(key).append(" is ").append(found->second).append(", not ").append(value).append(" ");
    for (const auto& [key, value] : settingsSeen_)
        if (!expected_.settings.contains(key))
            about.append(key).append(" is there ");
    rule(false, "the settings file holds what was saved", about);
}

} // namespace programWalk
