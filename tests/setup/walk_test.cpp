// Random walks: what a user may do to the dialog, in any order, beside the model of walkModel.h. After each
// step all that the dialog holds is compared, after each closing the lists and the settings file too.
#include "codePages.h"
#include "fuzz/random.h"
#include "setup/dialog.h"
#include "setup/walkModel.h"
#include "store/textCatalogue.h"

#include <map>
#include <sstream>

using fuzz::Random;
using setup::frmSetup;
using store::ToolButton;

namespace {

constexpr const char* eagleFile = "C:\\EAGLE\\eagle.exe";
constexpr std::array<std::string ToolButton::*, 4> textFields = {&ToolButton::name, &ToolButton::path,
                                                                 &ToolButton::tooltip, &ToolButton::param};

class Walk {
  public:
    explicit Walk(std::uint32_t seed) : random_(seed) {
        dialog_.desk().writeFile(eagleFile, "MZ");
        dialog_.desk().addIcons("C:\\kestrel\\brd.ico", 1);
        dialog_.desk().addIcons("C:\\some.dll", 9);
    }

    void step();
    std::size_t closings = 0;
    int refusals() const { return model_.messages; }

  private:
    struct Step {
        const char* name;
        void (Walk::*does)();
        std::size_t weight;
    };
    static const Step steps[];

    frmSetup& form() { return setup::setupForm(); }
    std::size_t page() { return random_.below(3); }
    forms::TextBox& box(std::size_t page, std::size_t field) {
        const std::array<forms::TextBox*, 4> boxes = {&form().txtTitle[page], &form().txtPath[page],
                                                      &form().txtTooltip[page], &form().txtPara[page]};
        return *boxes[field];
    }

    void select();
    void addProgram();
    void addEagle();
    void addSeparator();
    void remove();
    void moveUp();
    void moveDown();
    void edit();
    void choose();
    void icon();
    void language();
    void tick();
    void pickChoice();
    void typePath();
    void ok();
    void cancel();

    void open();
    void closed();
    void compareDialog();
    void comparePage(std::size_t page);
    void compareOptions();
    void compareSaved();
    void compareFile();

    setup::Dialog dialog_;
    walk::Model model_;
    Random random_;
};

const Walk::Step Walk::steps[] = {
    {"select", &Walk::select, 12},
    {"add a program", &Walk::addProgram, 4},
    {"add a command", &Walk::addEagle, 4},
    {"add a separator", &Walk::addSeparator, 3},
    {"remove", &Walk::remove, 6},
    {"move up", &Walk::moveUp, 4},
    {"move down", &Walk::moveDown, 4},
    {"edit", &Walk::edit, 12},
    {"choose", &Walk::choose, 8},
    {"icon", &Walk::icon, 4},
    {"language", &Walk::language, 1},
    {"tick", &Walk::tick, 3},
    {"pick", &Walk::pickChoice, 2},
    {"path", &Walk::typePath, 2},
    {"OK", &Walk::ok, 2},
    {"Cancel", &Walk::cancel, 1},
};

void Walk::step() {
    if (!model_.isOpen)
        open();
    std::size_t all = 0;
    for (const Step& each : steps)
        all += each.weight;
    std::size_t place = random_.below(all);
    const Step* chosen = steps;
    for (; place >= chosen->weight; ++chosen)
        place -= chosen->weight;
    const std::string name = chosen->name;
    CAPTURE(name);
    (this->*chosen->does)();
    if (model_.isOpen)
        compareDialog();
    else
        closed();
}

void Walk::open() {
    dialog_.open(static_cast<int>(random_.below(4)));
    model_.open();
    compareDialog();
}

void Walk::select() {
    const std::size_t at = page();
    if (model_.work[at].rows.empty())
        return;
    const std::size_t row = random_.below(model_.work[at].rows.size());
    dialog_.select(at, static_cast<int>(row));
    model_.select(at, static_cast<int>(row));
}

void Walk::addProgram() {
    const std::size_t at = page();
    std::optional<std::string> file;
    if (model_.work[at].rows.size() < 9 && random_.below(3) != 0)
        file = random_.below(2) == 0 ? "C:\\tools\\edit.exe" : "C:\\x\\y\\z.bat";
    dialog_.desk().fileAnswers = {file};
    dialog_.click(form().btnAdd[at]);
    model_.addProgram(at, file);
}

void Walk::addEagle() {
    const std::size_t at = page();
    if (model_.work[at].rows.size() > 8)
        return;
    dialog_.click(form().btnAddEAGLE[at]);
    model_.addEagle(at);
}

void Walk::addSeparator() {
    const std::size_t at = page();
    if (model_.work[at].rows.size() > 8)
        return;
    dialog_.click(form().btnAddSep[at]);
    model_.addSeparator(at);
}

void Walk::remove() {
    const std::size_t at = page();
    dialog_.click(form().btnRemove[at]);
    model_.remove(at);
}

void Walk::moveUp() {
    const std::size_t at = page();
    dialog_.click(form().btnH[at]);
    model_.move(at, -1);
}

void Walk::moveDown() {
    const std::size_t at = page();
    dialog_.click(form().btnL[at]);
    model_.move(at, 1);
}

void Walk::edit() {
    const std::size_t at = page();
    const std::size_t field = random_.below(textFields.size());
    if (!box(at, field).acceptsInput())
        return;
    const std::string texts[] = {
        "", "a", "Fit", "window fit", "x=1", "[board]", "{eaglepath}\\bin", western("\xE4\xA7")};
    const std::string text = random_.oneOf(texts);
    dialog_.enter(box(at, field), text);
    model_.edit(at, field, text);
}

void Walk::choose() {
    const std::size_t option = random_.below(form().chkAdd.size());
    if (!form().chkAdd[option].acceptsInput())
        return;
    dialog_.choose(form().chkAdd[option]);
    model_.choose(option);
}

void Walk::icon() {
    const std::size_t at = page();
    if (!form().btnIcon[at].acceptsInput())
        return;
    const int index = static_cast<int>(random_.below(9));
    const bool confirmed = random_.below(4) != 0;
    dialog_.desk().chooserAnswers = {{confirmed ? 1 : 0, u"C:\\some.dll", index}};
    dialog_.click(form().btnIcon[at]);
    if (confirmed)
        model_.icon(at, "C:\\some.dll," + std::to_string(index));
}

void Walk::language() {
    const bool english = random_.below(2) == 0;
    dialog_.act([&] { form().cboLanguage.selected(english ? 0 : 1); });
    model_.language(english);
}

void Walk::tick() {
    const std::array<forms::CheckBox*, 7> boxes = {&form().chkEAGLE,   &form().chkClose,   &form().chkLastBRD,
                                                   &form().chkLastSCH, &form().chkLastLBR, &form().chkOneInst,
                                                   &form().chkUnitCalc};
    const std::size_t number = random_.below(boxes.size());
    dialog_.act([&] { boxes[number]->click(); });
    bool& shown = number < 6 ? model_.shown.boxes[number] : model_.shown.calculator;
    shown = !shown;
}

void Walk::pickChoice() {
    const std::size_t number = random_.below(4);
    forms::ComboBox& list = number < 2 ? form().cboUnit[number] : form().cboAccur[number - 2];
    const int row = static_cast<int>(random_.below(static_cast<std::size_t>(list.listCount())));
    dialog_.act([&] { list.selected(row); });
    model_.shown.choices[number] = list.list(row);
}

void Walk::typePath() {
    const char* const paths[] = {eagleFile, eagleFile, "", "C:\\nowhere\\eagle.exe"};
    model_.shown.path = random_.oneOf(paths);
    dialog_.enter(form().txtEAGLE, model_.shown.path);
}

void Walk::ok() {
    dialog_.ok();
    model_.ok(model_.shown.path == eagleFile);
}

void Walk::cancel() {
    if (random_.below(2) == 0)
        dialog_.click(form().btnCancel);
    else
        dialog_.act([&] { form().closeRequested(); });
    model_.close();
}

/// What the toolbar that has opened the dialog does.
void Walk::closed() {
    ++closings;
    CHECK(dialog_.closed());
    compareSaved();
    compareFile();
    const std::size_t at = page();
    store::loadList(static_cast<store::EditorKind>(at));
    model_.reload(at);
    compareSaved();
}

void checkRow(const ToolButton& record, const walk::Row& row) {
    for (std::size_t field = 0; field < textFields.size(); ++field)
        CHECK(record.*textFields[field] == row.text[field]);
    CHECK(record.icon == row.icon);
    CHECK(record.rowNumber == row.number);
    CHECK(record.dialog == row.dialog);
    CHECK(record.type == row.type);
    CHECK(record.live == 1);
}

void checkList(const store::ButtonList& list, const walk::List& expected) {
    REQUIRE(list.allocated() == expected.there);
    if (!expected.there)
        return;
    const auto rows = static_cast<std::int32_t>(expected.rows.size());
    REQUIRE(list.upperBound() == rows + expected.removed);
    for (std::int32_t slot = 1; slot <= rows; ++slot)
        checkRow(list[slot], expected.rows[static_cast<std::size_t>(slot - 1)]);
    for (std::int32_t slot = rows + 1; slot <= list.upperBound(); ++slot)
        CHECK(list[slot].live == 0);
    CHECK(list[0].dialog == expected.unused.dialog);
    CHECK(list[0].icon == expected.unused.icon);
    CHECK(list[0].live == 0);
}

void Walk::compareDialog() {
    for (std::size_t at = 0; at < 3; ++at)
        comparePage(at);
    compareOptions();
    CHECK(form().noUpdate == 0);
    CHECK((form().mousePointer() == forms::MousePointer::hourglass) == model_.hourglass);
    CHECK(dialog_.desk().messageBoxes.size() == static_cast<std::size_t>(model_.messages));
}

void Walk::comparePage(std::size_t at) {
    CAPTURE(at);
    const walk::Page& shown = model_.pages[at];
    checkList(form().workList[at], model_.work[at]);
    CHECK(dialog_.rows(at) == shown.captions);
    CHECK(dialog_.selected(at) == shown.selected);
    for (std::size_t field = 0; field < textFields.size(); ++field)
        CHECK(box(at, field).text() == shown.text[field]);
    for (std::size_t field = 0; field < 3; ++field)
        CHECK(box(at, field).enabled() == shown.edits);
    CHECK(form().btnIcon[at].enabled() == shown.edits);
    CHECK(form().fraCommand[at].enabled() == shown.frameWorks);
    CHECK(form().txtPara[at].enabled() == shown.question);
    CHECK(form().labPara[at].enabled() == shown.questionLabel);
    const int id = (shown.eagleLabel ? 1052 : 1002) + (model_.english ? 10000 : 0);
    CHECK(form().labPath[at].caption() == store::LoadResString(id));
    for (std::size_t option = 0; option < 3; ++option) {
        const forms::OptionButton& button = form().chkAdd[3 * at + option];
        CHECK(button.value() == (shown.option == static_cast<int>(option)));
        CHECK(button.enabled() == shown.optionsWork);
    }
}

void Walk::compareOptions() {
    const walk::Options& shown = model_.shown;
    const std::array<int, 6> boxes = {form().chkEAGLE.value(),   form().chkClose.value(),
                                      form().chkLastBRD.value(), form().chkLastSCH.value(),
                                      form().chkLastLBR.value(), form().chkOneInst.value()};
    for (std::size_t number = 0; number < boxes.size(); ++number)
        CHECK(boxes[number] == (shown.boxes[number] ? 1 : 0));
    CHECK(form().chkUnitCalc.value() == (shown.calculator ? 1 : 0));
    CHECK(form().txtEAGLE.text() == shown.path);
    for (std::size_t side = 0; side < 2; ++side) {
        CHECK(form().cboUnit[side].text() == shown.choices[side]);
        CHECK(form().cboAccur[side].text() == shown.choices[side + 2]);
        CHECK(store::unitName[side] == model_.running[side]);
        CHECK(store::unitAccuracy[side] == model_.running[side + 2]);
    }
    CHECK((store::unitCalcActive != 0) == model_.calculatorRuns);
    CHECK(store::languageOffset == (model_.english ? 10000 : 0));
}

void Walk::compareSaved() {
    for (const store::EditorKind kind : store::editorKinds)
        checkList(*store::listOf(kind).buttons, model_.saved[static_cast<std::size_t>(kind)]);
}

/// The sections of an INI text, each a map of its keys.
using Sections = std::map<std::string, std::map<std::string, std::string>>;

Sections sectionsOf(const std::string& text) {
    Sections sections;
    std::istringstream lines(text);
    std::string line;
    std::string section;
    while (std::getline(lines, line)) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        const std::size_t mark = line.find('=');
        if (mark != std::string::npos)
            sections[section][line.substr(0, mark)] = line.substr(mark + 1);
        else if (!line.empty())
            section = line.substr(1, line.size() - 2);
    }
    return sections;
}

void Walk::compareFile() {
    Sections sections = sectionsOf(dialog_.desk().settings());
    constexpr std::array<const char*, 3> names = {"board", "schem", "libr"};
    for (std::size_t at = 0; at < 3; ++at) {
        std::map<std::string, std::string> expected;
        int number = 0;
        for (const walk::Row& row : model_.fileRows[at]) {
            const std::string before = std::to_string(++number);
            const std::array<const char*, 4> words = {"name", "path", "tooltip", "param"};
            for (std::size_t field = 0; field < words.size(); ++field)
                expected[before + words[field]] = row.text[field];
            expected[before + "icon"] = row.icon;
            expected[before + "dialog"] = std::to_string(row.dialog);
            expected[before + "type"] = std::to_string(row.type);
        }
        CHECK(sections[names[at]] == expected);
    }
    const auto flag = [](bool on) { return std::string(on ? "1" : "0"); };
    const walk::Options& options = model_.file;
    std::map<std::string, std::string>& written = sections["Toolbar"];
    CHECK(sections["global"]["language"] == (model_.english ? "10000" : "0"));
    if (written.empty())
        return;
    CHECK(written["autoEAGLE"] == flag(options.boxes[0]));
    CHECK(written["autoToolbar"] == flag(options.boxes[1]));
    CHECK(written["winEAGLE"] == std::to_string((options.boxes[2] ? 1 : 0) + (options.boxes[3] ? 2 : 0) +
                                                (options.boxes[4] ? 4 : 0)));
    CHECK(written["oneEAGLE"] == flag(options.boxes[5]));
    CHECK(written["EAGLEpath"] == options.path);
    CHECK(sections["Unit"]["Visible"] == flag(options.calculator));
    const std::array<const char*, 4> keys = {"LeftUnit", "RightUnit", "LeftAccuracy", "RightAccuracy"};
    for (std::size_t number = 0; number < keys.size(); ++number)
        CHECK(sections["Unit"][keys[number]] == options.choices[number]);
}

} // namespace

TEST_SUITE_BEGIN("setup/walk");

TEST_CASE("random walks do to lists and settings what the model says") {
    std::size_t closings = 0;
    int refusals = 0;
    for (std::uint32_t seed = 1; seed <= 20; ++seed) {
        CAPTURE(seed);
        Walk walk(seed);
        for (int step = 0; step < 300; ++step) {
            CAPTURE(step);
            walk.step();
        }
        closings += walk.closings;
        refusals += walk.refusals();
    }
    // The walks are worth something only if they get around.
    CHECK(closings > 100);
    CHECK(refusals > 20);
}

TEST_SUITE_END();
