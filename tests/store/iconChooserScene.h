// The icon chooser of our own as tests drive it: a desktop whose shell has none, and what a user does.
#pragma once

#include "desktop/desktop.h"
#include "store/frmIconChooser.h"
#include "store/iconExtract.h"
#include "store/state.h"

#include <doctest/doctest.h>

#include <functional>
#include <string>

namespace chooserScene {

using store::frmIconChooser;

inline constexpr platform::HWND setupWindow{0x42};
inline constexpr const char* shellFile = "C:\\t\\shell.dll";
inline constexpr std::int32_t english = 10000;

/// A desktop whose shell has no chooser, with a file of 40 icons, one without and the language English.
class Scene {
  public:
    Scene() {
        store::languageOffset = english;
        desktop::world().addIcons(shellFile, 40);
        desktop::world().writeFile("C:\\t\\notes.txt", "text");
    }
    ~Scene() = default;
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    /// What chooseIconFile gives when the user does this with the chooser.
    static std::string choose(const std::string& reference,
                              const std::function<void(frmIconChooser&)>& user) {
        desktop::world().modalScripts.emplace_back(
            [user](forms::Form& form) { user(dynamic_cast<frmIconChooser&>(form)); });
        return store::chooseIconFile(reference, setupWindow);
    }

    /// The same for a user who only looks.
    static void look(const std::string& reference, const std::function<void(frmIconChooser&)>& user) {
        CHECK(choose(reference, [&user](frmIconChooser& form) {
                  user(form);
                  form.btnCancel.click();
              }) == "");
    }

  private:
    desktop::Session session_;
};

inline std::string reference(const std::string& file, int index) {
    return file + "," + std::to_string(index);
}

/// The user replaces the name of the file.
inline void name(frmIconChooser& form, const std::string& file) {
    form.txtFile.edited(file);
}

/// The user presses Enter anywhere but on a button.
inline void enter(frmIconChooser& form) {
    form.btnOk.click();
}

/// No icons, but this text, and nothing to confirm.
inline void checkSays(const frmIconChooser& form, const std::string& message) {
    CHECK(form.labMessage.visible());
    CHECK(form.labMessage.caption() == message);
    CHECK_FALSE(form.grdIcons.visible());
    CHECK(form.grdIcons.count() == 0);
    CHECK_FALSE(form.btnOk.enabled());
}

} // namespace chooserScene
