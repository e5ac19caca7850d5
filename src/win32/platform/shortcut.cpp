#include "platform/shortcut.h"

#include "win32/common/components.h"
#include "win32/common/wide.h"
#include "win32/platform/hosts.h"
#include "win32/platform/paths.h"

#include <windows.h>

#include <shlobj.h>

#include <array>
#include <memory>

namespace {

struct Releasing {
    void operator()(IUnknown* object) const { object->Release(); }
};
template <typename Interface>
using Held = std::unique_ptr<Interface, Releasing>;

template <typename Interface>
Held<Interface> interfaceOf(IUnknown& object, REFIID id) {
    void* found = nullptr;
    return Held<Interface>(SUCCEEDED(object.QueryInterface(id, &found)) ? static_cast<Interface*>(found)
                                                                        : nullptr);
}

std::optional<platform::Shortcut> read(const std::wstring& path) {
    // The work runs on a thread of its own where the path is on the network.
    const win32::Components components;
    const Held<IShellLinkW> link(
        static_cast<IShellLinkW*>(components.make(CLSID_ShellLink, IID_IShellLinkW)));
    if (!link)
        return {};
    const auto file = interfaceOf<IPersistFile>(*link, IID_IPersistFile);
    if (!file || FAILED(file->Load(path.c_str(), STGM_READ)))
        return {};
    // The shell cuts the one to its own length of a path, the other to what it is given.
    std::array<wchar_t, MAX_PATH> target{};
    std::array<wchar_t, INFOTIPSIZE> arguments{};
    if (link->GetPath(target.data(), static_cast<int>(target.size()), nullptr, 0) != S_OK)
        target[0] = L'\0';
    if (FAILED(link->GetArguments(arguments.data(), static_cast<int>(arguments.size()))))
        return {};
    return platform::Shortcut{win32::pathText(target.data()), win32::toText(arguments.data())};
}

} // namespace

namespace platform {

std::optional<Shortcut> readShortcut(std::string_view path) {
    win32::keepComponents();
    const auto found = std::make_shared<std::optional<Shortcut>>();
    const bool asked = win32::askHost(path, [whole = std::string(path), found] {
        *found = read(win32::widePath(whole));
        return *found || win32::fileAnswers(whole);
    });
    return asked ? *found : std::nullopt;
}

} // namespace platform
