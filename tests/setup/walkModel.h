// A small model of the setup dialog, made apart from it: the working lists, what the pages show, the saved
// lists and the settings file, by the rules as a user would write them down.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace walk {

/// What the user can edit of an entry, with its icon.
struct Row {
    std::array<std::string, 4> text; ///< title, path, tip, question
    std::string icon;
    int number = 0; ///< the list's highest slot when it was added
    int dialog = 0;
    int type = 0;

    bool operator==(const Row&) const = default;
};

/// A list: live rows, or, with none left, the removed ones that wait for the next add.
struct List {
    bool there = false;
    std::vector<Row> rows;
    int removed = 0;
    Row unused; ///< slot 0

    void add(Row row);
    void removeRow(std::size_t place);
};

struct Page {
    int selected = -1;
    std::vector<std::string> captions;
    std::array<std::string, 4> text;
    bool edits = false;     ///< title, path, tip and icon can be edited
    bool frameWorks = true; ///< the frame around the fields
    bool question = false;
    bool questionLabel = true; ///< starts apart from its field
    bool eagleLabel = false;
    int option = -1; ///< of the page's three option buttons
    bool optionsWork = false;
};

struct Options {
    std::array<bool, 6> boxes = {}; ///< autostart, close, board, schematic, library, one instance
    bool calculator = false;
    std::string path;
    std::array<std::string, 4> choices; ///< units left, right, accuracies left, right

    bool operator==(const Options&) const = default;
};

class Model {
  public:
    Model();

    // What a user does.
    void open();
    void close() { isOpen = false; }
    void select(std::size_t page, int row);
    void addProgram(std::size_t page, const std::optional<std::string>& chosen);
    void addEagle(std::size_t page);
    void addSeparator(std::size_t page);
    void remove(std::size_t page);
    void move(std::size_t page, int step);
    void edit(std::size_t page, std::size_t field, const std::string& text);
    void choose(std::size_t option);
    void icon(std::size_t page, const std::string& chosen);
    void language(bool english);
    /// Whether the dialog has closed.
    bool ok(bool pathValid);
    /// A toolbar that has opened the dialog reads its list from the file.
    void reload(std::size_t page);

    bool isOpen = false;
    bool hourglass = false;
    bool english = false;
    std::array<List, 3> work;
    std::array<List, 3> saved;
    std::array<Page, 3> pages;
    Options shown;
    Options file;                       ///< as the settings have them
    std::array<std::string, 4> running; ///< the calculator's, as the program has them
    bool calculatorRuns = false;
    std::array<std::vector<Row>, 3> fileRows;
    int messages = 0;

  private:
    void fill(std::size_t page);
    void fillOptions();
    void show(std::size_t page, int type);
    void switchOption(std::size_t option, bool silent);
    void selectByProgram(std::size_t page, int row, bool silent);
    void showRow(std::size_t page, bool silent);
    void startAdd(std::size_t page, int type);
};

} // namespace walk
