// Message box and input box.
#include "platform/dialogs.h"

#include "forms/button.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/textBox.h"
#include "win32/common/holding.h"
#include "win32/common/systemDialog.h"

#include <windows.h>

namespace win32 {

namespace {

/// One line of text from the user.
class InputForm : public forms::Form {
  public:
    InputForm(std::string_view prompt, std::string_view title) {
        setCaption(title);
        borderStyle = forms::BorderStyle::fixedDialog;
        showInTaskbar = false;
        centreOnScreen = true;
        followsScreen = true;
        setClientSize(5400, 1875);
        labPrompt.wordWrap = true;
        labPrompt.setCaption(escaped(prompt));
        labPrompt.place(*this, {150, 150, 3705, 1050});
        txtAnswer.place(*this, {150, 1350, 5100, 315});
        btnOk.place(*this, {4020, 150, 1230, 375});
        btnOk.setCaption("OK");
        btnOk.isDefault = true;
        btnOk.onClick = [this] {
            answer = txtAnswer.text();
            unload();
        };
        btnCancel.place(*this, {4020, 630, 1230, 375});
        btnCancel.setCaption("Cancel");
        btnCancel.isCancel = true;
        btnCancel.onClick = [this] { unload(); };
    }

    void Form_Load() override { txtAnswer.setFocus(); }

    std::string answer;

  private:
    /// A prompt is shown as it stands: its ampersands are no mnemonics.
    static std::string escaped(std::string_view prompt) {
        std::string text;
        for (const char character : prompt)
            text.append(character == '&' ? 2 : 1, character);
        return text;
    }

    forms::Label labPrompt;
    forms::TextBox txtAnswer;
    forms::CommandButton btnOk;
    forms::CommandButton btnCancel;
};

} // namespace

} // namespace win32

namespace platform {

int msgBox(std::string_view text, int style, std::string_view title) {
    const win32::SystemDialog shown(win32::modalWindow());
    return MessageBoxA(shown.owner(), std::string(text).c_str(), std::string(title).c_str(),
                       static_cast<UINT>(style) | MB_SETFOREGROUND);
}

std::string inputBox(std::string_view prompt, std::string_view title) {
    win32::InputForm form(prompt, title);
    form.showModal();
    return form.answer;
}

void beep() {
    MessageBeep(MB_OK);
}

} // namespace platform
