// Where a protocol can go beside its file: printer, a second file, mail, web.
#include "errors/ErrPtnr.h"

#include "errors/lineEnd.h"
#include "errors/printWrap.h"
#include "errors/protocolFile.h"
#include "errors/support.h"
#include "platform/clipboard.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/printer.h"
#include "platform/shell32.h"
#include "platform/textFile.h"
#include "runtime/western.h"

namespace errors {

namespace {

constexpr int okStyle = 0;
constexpr int yesNoStyle = 4;
constexpr int no = 7;

int ask(const std::string& text, int style) {
    return platform::msgBox(text, style, "Kestrel");
}

constexpr const char* mailMessage =
    "Es wird jetzt Ihr Standard-Email-Programm aufgerufen. Die Fehlerbeschreibung sowie das "
    "Fehlerprotokoll\r\n"
    "wurden zu Ihrer Bequemlichkeit in die Zwischenablage kopiert.\r\n"
    "\r\n"
    "Bitte f\xFCgen Sie den Inhalt der Zwischenablage in Ihre Email ein, indem Sie in Ihrem "
    "Email-Programm\r\n"
    "die Tasten [Strg] und [Einfg] gleichzeitig bet\xE4tigen. Alternativ k\xF6nnen Sie den Inhalt in die "
    "EMail\r\n"
    "einf\xFCgen, indem Sie den Befehl 'Einf\xFCgen' aus dem Men\xFC 'Bearbeiten' ausf\xFChren.";

void print(const std::string& protocol) {
    for (const std::string& line : printLines(protocol + lineEnd))
        platform::printLine(line);
    platform::endPrintJob();
}

void save(const std::string& protocol) {
    const std::string path = protocolFile(".ERR");
    const std::string question = "Vorhandene Datei '" + path + runtime::western("' \xFC") + "berschreiben ?";
    if (!platform::dir(path).empty() && ask(question, yesNoStyle) == no)
        return;
    platform::writeFile(path, protocol + lineEnd);
    ask("Das Fehlerprotokoll wurde in die Datei '" + path + "' geschrieben !", okStyle);
}

/// With the protocol in the clipboard. A mail program or browser that is missing goes unnoticed.
void open(const std::string& target, platform::HWND owner, const std::string& protocol) {
    platform::clearClipboard();
    platform::setClipboardText(protocol);
    platform::ShellExecuteA(owner, "Open", target.c_str(), "", "", platform::showNormally);
}

} // namespace

void ErrPtnr::cmdProtocol_Click(std::int16_t Index) {
    const std::string protocol = buildProtocol();
    switch (Index) {
    case 0:
        print(protocol);
        break;
    case 1:
        save(protocol);
        break;
    case 2:
        // Kept: the message comes first, though it says that the protocol is in the clipboard already.
        ask(runtime::western(mailMessage), okStyle);
        open(mailTarget(supportMail), window(), protocol);
        break;
    case 3:
        open(supportWeb, window(), protocol);
        break;
    default:
        break;
    }
}

} // namespace errors
