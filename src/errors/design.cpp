// How the form of ErrPtnr looks before its first report. Its texts are German in either language.
#include "errors/ErrPtnr.h"

#include "runtime/western.h"

namespace errors {

namespace {

constexpr forms::Colour red = 0xFF0000;

constexpr float frameWidth = 7215;

forms::Font bold() {
    forms::Font font;
    font.bold = true;
    return font;
}

} // namespace

ErrPtnr::ErrPtnr() {
    borderStyle = forms::BorderStyle::fixedDialog;
    controlBox = false;
    showInTaskbar = false;
    followsScreen = true;
    setCaption("ProgInfo - Fehlermeldung");
    designFrames();
    designError();
    designButtons();
    lblComment.wordWrap = true;
    lblComment.setForeColour(forms::white);
    lblComment.setFont(bold());
    lblComment.place(framComment, {120, 120, 6975, 735});
    lstCallStack.place(framCallStack, {120, 240, 6975, 1395});
    setClientSize(frameWidth, framContinue.top() + framContinue.height());
}

/// From top to bottom, which is the tab order too.
void ErrPtnr::designFrames() {
    const struct {
        forms::Frame& frame;
        float top;
        float height;
        const char* caption;
    } frames[] = {
        {framComment, 0, 975, ""},
        {framFehler, 960, 1575, "Fehlerbeschreibung:"},
        {framProtocol, 2520, 735, "Fehlerprotokoll ..."},
        {framCallStack, 3240, 1695, "CallStack:"},
        {framContinue, 4920, 855, "Weiterer Programmablauf..."},
    };
    for (const auto& [frame, top, height, caption] : frames) {
        frame.setCaption(caption);
        frame.setFont(bold());
        frame.place(*this, {0, top, frameWidth, height});
    }
    framComment.setFont({});
    framComment.setBackColour(forms::black);
    framComment.setForeColour(red);
    framFehler.setForeColour(forms::black);
}

void ErrPtnr::designError() {
    Label1.alignment = forms::Alignment::centre;
    Label1.autoSize = true;
    Label1.border = true;
    Label1.setCaption(" ! ");
    Label1.setForeColour(red);
    Label1.place(framFehler, {90, 240, 705, 900});
    Label1.setFont({"Arial", 36, true, false});
    const struct {
        const char* title;
        float top;
        forms::Position value;
    } lines[] = {
        {"Fehler-Nr:", 240, {2040, 240, 5085, 495}},
        {"Modul:", 720, {2040, 720, 840, 255}},
        {"Prozedur:", 960, {2040, 960, 840, 255}},
        {"Zeilen-Nr.:", 1200, {2040, 1200, 840, 255}},
    };
    for (std::size_t index = 0; index < lblError.size(); ++index) {
        const auto& [title, top, value] = lines[index];
        lblErrTitel[index].setCaption(title);
        lblErrTitel[index].place(framFehler, {960, top, 975, 255});
        forms::Label& label = lblError[index];
        label.border = true;
        // A description and names are shown as they are.
        label.mnemonic = false;
        label.setBackColour(forms::white);
        // A description wraps in the room that it has; the others grow to the right with their text.
        label.wordWrap = index == 0;
        label.autoSize = index != 0;
        label.place(framFehler, value);
    }
}

void ErrPtnr::designButtons() {
    constexpr float left[] = {240, 2040, 3840, 5640};
    constexpr const char* protocol[] = {"&Drucken", "&Speichern", "&EMail", "&WWW"};
    constexpr const char* next[] = {"Befehl wieder&holen",
                                    ("Fortsetzen mit &n\xE4"
                                     "chsten Befehl"),
                                    "&Prozedur verlassen", "Programm &beenden"};
    for (std::size_t index = 0; index < cmdProtocol.size(); ++index) {
        cmdProtocol[index].setCaption(protocol[index]);
        cmdProtocol[index].onClick = [this, index] { cmdProtocol_Click(static_cast<std::int16_t>(index)); };
        cmdProtocol[index].place(framProtocol, {left[index], 240, 1335, 375});
        cmdContinue[index].setCaption(runtime::western(next[index]));
        cmdContinue[index].onClick = [this, index] { cmdContinue_Click(static_cast<std::int16_t>(index)); };
        cmdContinue[index].place(framContinue, {left[index], 240, 1335, 495});
    }
}

} // namespace errors
