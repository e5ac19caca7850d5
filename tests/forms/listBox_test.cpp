// List box and drop-down list.
#include "forms/listBox.h"

#include "runtime/runtimeError.h"

#include <doctest/doctest.h>

#include <string>
#include <vector>

namespace {

struct Rows : forms::ListBox {
    Rows() {
        for (const char* row : {"zero", "one", "two"})
            addItem(row);
        onClick = [this] { clicked.push_back(listIndex()); };
    }
    std::vector<int> clicked;
};

} // namespace

TEST_SUITE_BEGIN("forms/listBox");

TEST_CASE("an assigned row raises the click inside the assignment if it is another one") {
    Rows list;
    CHECK(list.listIndex() == -1);
    list.setListIndex(1);
    list.setListIndex(1);
    list.setListIndex(2);
    CHECK(list.clicked == std::vector<int>{1, 2});
}

TEST_CASE("taking the selection away raises nothing") {
    Rows list;
    list.setListIndex(1);
    list.setListIndex(-1);
    CHECK(list.listIndex() == -1);
    CHECK(list.clicked == std::vector<int>{1});
    list.setListIndex(1);
    CHECK(list.clicked == std::vector<int>{1, 1});
}

TEST_CASE("a row that is not there cannot be selected or read") {
    Rows list;
    list.setListIndex(1);
    CHECK_THROWS_AS(list.setListIndex(3), runtime::RuntimeError);
    CHECK_THROWS_AS(list.setListIndex(-2), runtime::RuntimeError);
    CHECK_THROWS_AS(list.list(3), runtime::RuntimeError);
    CHECK_THROWS_AS(list.list(-1), runtime::RuntimeError);
    CHECK(list.listIndex() == 1);
    CHECK(list.list(2) == "two");
}

TEST_CASE("clearing a list takes rows and selection without an event; the same row then counts as new") {
    Rows list;
    list.setListIndex(0);
    list.clear();
    CHECK(list.listCount() == 0);
    CHECK(list.listIndex() == -1);
    list.addItem("again");
    CHECK(list.listIndex() == -1);
    list.setListIndex(0);
    CHECK(list.clicked == std::vector<int>{0, 0});
}

TEST_CASE("a further row leaves the selection where it is") {
    Rows list;
    list.setListIndex(2);
    list.addItem("three");
    CHECK(list.listIndex() == 2);
    CHECK(list.clicked.size() == 1);
}

TEST_CASE("the user's click is raised on the selected row too") {
    Rows list;
    list.selected(1);
    list.selected(1);
    CHECK(list.clicked == std::vector<int>{1, 1});
}

TEST_CASE("the user cannot select a row that is not there, nor in a disabled list") {
    Rows list;
    list.selected(3);
    list.selected(-1);
    list.setEnabled(false);
    list.selected(0);
    CHECK(list.clicked.empty());
    CHECK(list.listIndex() == -1);
}

TEST_CASE("keys and files come to a list that hears of them, and not while it is disabled") {
    Rows list;
    platform::KeyStroke stroke;
    CHECK_FALSE(list.keyPressed(stroke));
    int heard = 0;
    list.onKey = [&](const platform::KeyStroke&) { return ++heard > 0; };
    list.onFiles = [&](const std::vector<std::string>& files) { heard += static_cast<int>(files.size()); };
    CHECK(list.keyPressed(stroke));
    list.filesDropped({"a", "b"});
    CHECK(heard == 3);
    list.setEnabled(false);
    CHECK_FALSE(list.keyPressed(stroke));
    list.filesDropped({"a"});
    CHECK(heard == 3);
}

TEST_CASE("a click may rebuild its list and select another row") {
    forms::ListBox list;
    list.addItem("a");
    list.addItem("b");
    std::vector<std::string> seen;
    list.onClick = [&] {
        seen.push_back(list.list(list.listIndex()));
        if (seen.size() == 1) {
            list.clear();
            list.addItem("c");
            list.setListIndex(0);
        }
    };
    list.setListIndex(1);
    CHECK(seen == std::vector<std::string>{"b", "c"});
    CHECK(list.listIndex() == 0);
}

TEST_CASE("a drop-down list takes only the text of one of its rows, exactly") {
    forms::ComboBox box;
    for (const char* row : {"mil", "Inch", "mm", "Inch"})
        box.addItem(row);
    int clicks = 0;
    box.onClick = [&] { ++clicks; };
    CHECK(box.text().empty());
    box.setText("Inch");
    CHECK(box.listIndex() == 1);
    CHECK(box.text() == "Inch");
    box.setText("inch");
    box.setText("cm");
    box.setText("");
    CHECK(box.text() == "Inch");
    box.setText("Inch");
    CHECK(clicks == 1);
}

TEST_SUITE_END();
