#include "setup/walkModel.h"

namespace walk {

void List::add(Row row) {
    there = true;
    row.number = static_cast<int>(rows.size()) + removed + 1;
    rows.push_back(std::move(row));
    if (removed > 0)
        unused = {};
    removed = 0;
}

void List::removeRow(std::size_t place) {
    rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(place));
    if (rows.empty())
        removed = 1;
    else
        unused = {};
}

Model::Model() {
    running = {"mil", "mm", "@", "@"};
}

void Model::fill(std::size_t page) {
    pages[page].captions.clear();
    for (const Row& row : work[page].rows)
        pages[page].captions.push_back(row.text[0]);
    pages[page].selected = -1;
}

void Model::fillOptions() {
    shown = file;
    shown.calculator = calculatorRuns;
    shown.choices = running;
}

void Model::open() {
    isOpen = true;
    hourglass = false;
    pages = {};
    work = saved;
    for (std::size_t page = 0; page < 3; ++page)
        fill(page);
    fillOptions();
}

/// Fields and option buttons for an entry of a type; the option buttons are those of the page with its
/// number.
void Model::show(std::size_t page, int type) {
    const bool edits = type == 0 || type == 1;
    pages[page].edits = edits;
    pages[page].frameWorks = edits;
    pages[page].question = pages[page].questionLabel = false;
    if (edits)
        pages[page].eagleLabel = type == 1;
    pages[edits ? static_cast<std::size_t>(type) : 2].optionsWork = edits;
}

/// The nine option buttons: three groups, of which only the first has any effect, and that across the pages.
void Model::switchOption(std::size_t option, bool silent) {
    int& on = pages[option / 3].option;
    const int wanted = static_cast<int>(option % 3);
    if (on == wanted)
        return;
    on = wanted;
    const std::size_t asks = option == 2 ? 1 : 0;
    if (option > 2 || silent || pages[asks].selected < 0)
        return;
    List& list = work[option];
    const int row = pages[option].selected;
    if (list.there)
        (row < 0 ? list.unused : list.rows[static_cast<std::size_t>(row)]).dialog = wanted;
    Page& follows = pages[option == 2 ? 1 : 0];
    follows.question = follows.questionLabel = option > 0;
}

void Model::showRow(std::size_t page, bool silent) {
    const Row row = work[page].rows[static_cast<std::size_t>(pages[page].selected)];
    show(page, row.type);
    pages[page].text = row.text;
    switchOption(static_cast<std::size_t>(row.dialog), silent);
}

void Model::select(std::size_t page, int row) {
    pages[page].selected = row;
    showRow(page, false);
}

void Model::selectByProgram(std::size_t page, int row, bool silent) {
    if (row == pages[page].selected)
        return;
    pages[page].selected = row;
    showRow(page, silent);
}

void Model::startAdd(std::size_t page, int type) {
    show(page, type);
    switchOption(3 * page, true);
    pages[page].text = {};
}

void Model::addProgram(std::size_t page, const std::optional<std::string>& chosen) {
    startAdd(page, 0);
    if (chosen) {
        Row row;
        row.text[0] = chosen->substr(chosen->rfind('\\') + 1);
        row.text[1] = *chosen;
        row.icon = *chosen + ",0";
        pages[page].text = row.text;
        work[page].add(row);
        fill(page);
    }
    selectByProgram(page, static_cast<int>(work[page].rows.size()) - 1, true);
}

void Model::addEagle(std::size_t page) {
    startAdd(page, 1);
    const std::array<const char*, 3> icons = {"brd", "sch", "lbr"};
    Row row;
    row.text[0] = "EAGLE Command";
    row.icon = std::string("C:\\kestrel\\") + icons[page] + ".ico,0";
    row.type = 1;
    work[page].add(row);
    fill(page);
    selectByProgram(page, static_cast<int>(work[page].rows.size()) - 1, true);
}

void Model::addSeparator(std::size_t page) {
    startAdd(page, 2);
    Row row;
    row.text[0] = std::string(34, '-');
    row.type = 2;
    work[page].add(row);
    fill(page);
    selectByProgram(page, static_cast<int>(work[page].rows.size()) - 1, true);
}

void Model::remove(std::size_t page) {
    if (work[page].rows.empty())
        return;
    show(page, static_cast<int>(page));
    const int selected = pages[page].selected;
    // The button's click finds the row selected still; what it writes goes with the row.
    switchOption(3 * page, false);
    pages[page].text = {};
    if (selected >= 0)
        work[page].removeRow(static_cast<std::size_t>(selected));
    fill(page);
}

void Model::move(std::size_t page, int step) {
    const int row = pages[page].selected;
    const int other = row + step;
    if (row < 0 || other < 0 || other >= static_cast<int>(work[page].rows.size()))
        return;
    std::vector<Row>& rows = work[page].rows;
    std::swap(rows[static_cast<std::size_t>(row)], rows[static_cast<std::size_t>(other)]);
    fill(page);
    selectByProgram(page, other, false);
}

void Model::edit(std::size_t page, std::size_t field, const std::string& text) {
    pages[page].text[field] = text;
    if (pages[page].selected >= 0)
        work[page].rows[static_cast<std::size_t>(pages[page].selected)].text[field] = text;
}

void Model::choose(std::size_t option) {
    switchOption(option, false);
}

void Model::icon(std::size_t page, const std::string& chosen) {
    if (!work[page].there)
        return;
    const int row = pages[page].selected;
    (row < 0 ? work[page].unused : work[page].rows[static_cast<std::size_t>(row)]).icon = chosen;
}

void Model::language(bool inEnglish) {
    english = inEnglish;
    for (std::size_t page = 0; page < 3; ++page) {
        pages[page].eagleLabel = false;
        fill(page);
    }
    fillOptions();
}

bool Model::ok(bool pathValid) {
    const std::string formerPath = file.path;
    file = shown;
    file.path = formerPath;
    calculatorRuns = shown.calculator;
    running = shown.choices;
    hourglass = false;
    if (shown.boxes[0] && !pathValid) {
        ++messages;
        return false;
    }
    file.path = shown.path;
    bool needsPath = false;
    for (std::size_t page = 0; page < 3; ++page) {
        saved[page] = work[page];
        saved[page].there = true;
        fileRows[page] = work[page].rows;
        for (const Row& row : work[page].rows)
            needsPath = needsPath || row.text[1].find("{eaglepath}") != std::string::npos ||
                        row.icon.find("{eaglepath}") != std::string::npos;
    }
    if (needsPath && !pathValid) {
        ++messages;
        hourglass = true;
        return false;
    }
    isOpen = false;
    return true;
}

/// Up to the first row without a title. Only the first row's number was not lost by then.
void Model::reload(std::size_t page) {
    std::vector<Row> read;
    for (const Row& row : fileRows[page]) {
        if (row.text[0].empty())
            break;
        read.push_back(row);
        read.back().number = 0;
    }
    if (read.empty())
        return;
    List& list = saved[page];
    if (!list.rows.empty())
        read[0].number = list.rows[0].number;
    list.there = true;
    list.removed = 0;
    list.rows = read;
}

} // namespace walk
