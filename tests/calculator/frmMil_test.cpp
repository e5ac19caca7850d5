#include "calculator/frmMil.h"

#include "desktop/keyboard.h"
#include "desktop/program.h"
#include "runtime/runtimeError.h"
#include "store/settings.h"
#include "store/state.h"

#include <doctest/doctest.h>

#include <cmath>
#include <string>
#include <vector>

using calculator::frmMil;
using desktop::typeInto;

namespace {

constexpr int tabKey = 9;
constexpr int shiftKey = 16;
constexpr int rightArrow = 39;

/// A calculator with the number formats given, as it stands in an editor window.
struct Calculator {
    explicit Calculator(const std::string& leftFormat = "@", const std::string& rightFormat = "@") {
        store::unitAccuracy = {leftFormat, rightFormat};
        form.load();
    }

    /// Types into a side as a user does who has clicked it before: the old value goes.
    void type(std::size_t side, const std::string& text) {
        form.txtSize[side].onMouseDown(1, 0, 0, 0);
        typeInto(form.txtSize[side], text);
    }
    void release(std::size_t side, int keyCode) { form.txtSize[side].onKeyUp(keyCode, 0); }
    const std::string& text(std::size_t side) { return form.txtSize[side].text(); }
    /// What the other side shows of a text that stands on the left.
    std::string rightOf(const std::string& left) {
        form.txtSize[0].setText(left);
        form.convert(1);
        return text(1);
    }

    desktop::Program program;
    frmMil form;
};

} // namespace

TEST_SUITE_BEGIN("calculator/frmMil");

TEST_CASE("a new one shows mil and mm, and 0 on both sides") {
    Calculator calculator;
    CHECK(calculator.form.labUnit[0].caption() == "mil");
    CHECK(calculator.form.labUnit[1].caption() == "mm");
    CHECK(calculator.text(0) == "0");
    CHECK(calculator.text(1) == "0");
    for (const forms::Label& label : calculator.form.labUnit) {
        CHECK(label.autoSize);
        CHECK(label.toolTipText() == "For setup or help => click right mouse button");
    }
}

TEST_CASE("the controls stand where they are designed, and Tab goes to the right side first") {
    Calculator calculator;
    frmMil& form = calculator.form;
    CHECK(form.scaleWidth() == 3000);
    CHECK(form.scaleHeight() == 375);
    CHECK(form.borderStyle == forms::BorderStyle::none);
    CHECK_FALSE(form.activates);
    CHECK_FALSE(form.showInTaskbar);
    CHECK_FALSE(form.fraMil.border);
    CHECK(form.fraMil.position() == forms::Position{0, 0, 2925, 270});
    CHECK(form.fraMil.font() == forms::Font{"@Arial Unicode MS", 6.75F, false, false});
    CHECK(form.labUnit[0].position() == forms::Position{0, 30, 180, 195});
    CHECK(form.labUnit[1].position() == forms::Position{1440, 30, 240, 195});
    CHECK(form.txtSize[0].position() == forms::Position{360, 0, 1035, 270});
    CHECK(form.txtSize[1].position() == forms::Position{1800, 0, 1035, 270});
    // A label right before its field.
    CHECK(form.labUnit[1].tabIndex == 0);
    CHECK(form.txtSize[1].tabIndex == 1);
    CHECK(form.labUnit[0].tabIndex == 2);
    CHECK(form.txtSize[0].tabIndex == 3);
    CHECK(form.txtSize[0].container() == &form.fraMil);
}

TEST_CASE("100 mil are 2.54 mm, 1 mm is 39.37 mil") {
    Calculator calculator("0.##", "0.##");
    calculator.type(0, "100");
    CHECK(calculator.text(1) == "2.54");
    calculator.type(1, "1");
    CHECK(calculator.text(0) == "39.37");
}

TEST_CASE("every unit by its exact factor, the ratio first and then the product") {
    struct Unit {
        const char* caption;
        double micrometres;
    };
    const Unit units[] = {{"mil", 25.4}, {"Inch", 25400}, {"mm", 1000}, {"cm", 10000}, {"um", 1}};
    Calculator calculator;
    for (const Unit& left : units)
        for (const Unit& right : units) {
            CAPTURE(left.caption);
            CAPTURE(right.caption);
            calculator.form.labUnit[0].setCaption(left.caption);
            calculator.form.labUnit[1].setCaption(right.caption);
            calculator.form.txtSize[0].setText("3.7");
            calculator.form.convert(1);
            CHECK(std::stod(calculator.text(1)) ==
                  doctest::Approx(3.7 * left.micrometres / right.micrometres).epsilon(1e-14));
            calculator.form.txtSize[1].setText("3.7");
            calculator.form.convert(0);
            CHECK(std::stod(calculator.text(0)) ==
                  doctest::Approx(3.7 * right.micrometres / left.micrometres).epsilon(1e-14));
        }
}

TEST_CASE("the order of the operations shows in the last digit") {
    Calculator calculator;
    struct Case {
        const char* millimetres;
        const char* mils;
    };
    // Each comes out by one digit more or less if the product or another ratio is formed first.
    for (const Case& one : {Case{"0.24", "9.44881889763779"}, Case{"125", "4921.25984251968"},
                            Case{"0.022", "0.866141732283465"}}) {
        CAPTURE(one.millimetres);
        calculator.form.txtSize[1].setText(one.millimetres);
        calculator.form.convert(0);
        CHECK(calculator.text(0) == one.mils);
    }
}

TEST_CASE("each has its own values") {
    Calculator calculator;
    frmMil other;
    calculator.type(0, "100");
    CHECK(other.txtSize[0].text() == "0");
    CHECK(other.txtSize[1].text() == "0");
    CHECK(calculator::defaultMil().txtSize[0].text() == "0");
}

TEST_CASE("the format of the side that is written counts") {
    Calculator calculator("0.###", "0.#");
    calculator.type(0, "100");
    CHECK(calculator.text(1) == "2.5");
    calculator.type(1, "2.54");
    CHECK(calculator.text(0) == "100.");
    store::unitAccuracy[1] = "0.####";
    calculator.release(0, shiftKey);
    CHECK(calculator.text(1) == "2.54");
}

TEST_CASE("an empty field gives 0 on the other side, whatever the format") {
    for (const char* format : {"@", "0.#", "0.#######"}) {
        Calculator calculator(format, format);
        for (const char* nothing : {"", "0", "0.000", "abc", ".", "-", "  ", "-0"}) {
            CAPTURE(nothing);
            calculator.form.txtSize[1].setText("5");
            CHECK(calculator.rightOf(nothing) == "0");
        }
    }
}

TEST_CASE("a comma that is typed arrives as a dot, in both fields") {
    Calculator calculator;
    calculator.type(0, "1,5");
    CHECK(calculator.text(0) == "1.5");
    calculator.type(1, "2,5");
    CHECK(calculator.text(1) == "2.5");
}

TEST_CASE("a comma that is pasted stays and ends the number") {
    Calculator calculator;
    calculator.form.txtSize[0].edited("1000,5");
    calculator.release(0, shiftKey);
    CHECK(calculator.text(0) == "1000,5");
    CHECK(calculator.text(1) == "25.4");
}

TEST_CASE("a whole result keeps the mark of its pattern") {
    Calculator calculator("0.##", "0.##");
    calculator.form.labUnit[0].setCaption("mm");
    CHECK(calculator.rightOf("2") == "2.");
}

TEST_CASE("a result below the pattern's resolution is an empty fraction, not 0") {
    Calculator calculator("0.#", "0.#");
    calculator.form.labUnit[0].setCaption("mm");
    CHECK(calculator.rightOf("0.001") == "0.");
}

TEST_CASE("any mouse button selects the whole value, and the next key replaces it") {
    Calculator calculator;
    for (const int button : {1, 2, 4}) {
        forms::TextBox& box = calculator.form.txtSize[0];
        box.setText("12345");
        box.setSelStart(2);
        box.onMouseDown(button, 0, 300, 100);
        CHECK(box.selStart() == 0);
        CHECK(box.selLength() == 5);
        CHECK(store::currentRoutine == "txtSize_MouseDown");
        typeInto(box, "7");
        CHECK(box.text() == "7");
    }
}

TEST_CASE("any key that is released computes the other side, Tab, arrows and Shift among them") {
    for (const int keyCode : {tabKey, shiftKey, rightArrow}) {
        Calculator calculator;
        calculator.form.txtSize[0].setText("100");
        CHECK(calculator.text(1) == "0");
        calculator.release(0, keyCode);
        CHECK(calculator.text(1) == "2.54");
        calculator.form.txtSize[0].setText("1");
        calculator.release(1, keyCode);
        CHECK(calculator.text(0) == "100");
    }
}

TEST_CASE("the field that is typed into is never rewritten") {
    Calculator calculator("0.#", "0.#");
    calculator.type(0, "1.23456");
    CHECK(calculator.text(0) == "1.23456");
    calculator.type(1, "007");
    CHECK(calculator.text(1) == "007");
}

TEST_CASE("a result that is written raises no conversion back") {
    Calculator calculator("0.#", "0.#");
    calculator.type(0, "1");
    CHECK(calculator.text(1) == "0.");
    CHECK(calculator.text(0) == "1");
}

TEST_CASE("text is read as far as it is a number, whatever it is") {
    Calculator calculator;
    CHECK(calculator.rightOf("1000abc") == "25.4");
    CHECK(calculator.rightOf("  1000") == "25.4");
    CHECK(calculator.rightOf("\t1000") == "25.4");
    CHECK(calculator.rightOf("--5") == "0");
    CHECK(calculator.rightOf("-1000") == "-25.4");
    CHECK(calculator.rightOf("+1000") == "25.4");
    CHECK(calculator.rightOf("1e3") == "25.4");
    CHECK(calculator.rightOf("1.5.5") == calculator.rightOf("1.5"));
    CHECK(calculator.rightOf("&H10") == "0");
    CHECK(calculator.rightOf("inf") == "0");
    CHECK(calculator.rightOf(std::string("1000\0007", 6)) == "25.4");
}

TEST_CASE("a number of 400 digits and 1e999 are the runtime's overflow") {
    Calculator calculator;
    for (const std::string& huge : {std::string("1e999"), std::string("-1e999"), std::string(400, '9')}) {
        CAPTURE(huge);
        calculator.form.txtSize[0].setText(huge);
        try {
            calculator.form.convert(1);
            FAIL("no error");
        } catch (const runtime::RuntimeError& error) {
            CHECK(error.number == runtime::ErrorNumber::overflow);
        }
    }
    CHECK(calculator.rightOf("0." + std::string(400, '0') + "1") == "0");
    CHECK(calculator.rightOf("1e-400") == "0");
}

TEST_CASE("a result beyond the range shows as infinite and ends nothing") {
    Calculator calculator;
    calculator.form.labUnit[0].setCaption("Inch");
    calculator.form.labUnit[1].setCaption("um");
    CHECK(calculator.rightOf("1e308") == "1.#INF");
    CHECK(calculator.rightOf("-1e308") == "-1.#INF");
}

TEST_CASE("an unknown unit on the side that is divided by gives the infinite text") {
    Calculator calculator("0.##", "0.##");
    calculator.form.labUnit[1].setCaption("furlong");
    CHECK(calculator.rightOf("1") == "1.#INF");
    CHECK(calculator.rightOf("-1") == "-1.#INF");
    CHECK(calculator.rightOf("0") == "-1.#IND");
}

TEST_CASE("an unknown unit on the other side gives 0") {
    Calculator calculator;
    calculator.form.labUnit[0].setCaption("MIL"); // the case counts
    CHECK(calculator.rightOf("100") == "0");
}

TEST_CASE("any direction but 1 computes from the right side; a side that is not there is error 9") {
    Calculator calculator;
    calculator.form.txtSize[1].setText("25.4");
    calculator.form.convert(0);
    CHECK(calculator.text(0) == "1000");
    for (const std::int16_t direction : {std::int16_t{-1}, std::int16_t{2}, std::int16_t{32767}})
        CHECK_THROWS_AS(calculator.form.convert(direction), runtime::RuntimeError);
}

TEST_CASE("the setup's units reach only the default instance") {
    Calculator calculator;
    store::unitName = {"Inch", "um"};
    calculator::defaultMil().loadResources();
    CHECK(calculator::defaultMil().labUnit[0].caption() == "Inch");
    CHECK(calculator::defaultMil().labUnit[1].caption() == "um");
    CHECK(calculator.form.labUnit[0].caption() == "mil");
    CHECK(calculator.form.labUnit[1].caption() == "mm");
}

TEST_CASE("one in an editor window keeps mil and mm whatever the settings say, but follows the formats") {
    desktop::Program program;
    program.desk().writeSettings(
        "[Unit]\r\nVisible=1\r\nLeftUnit=Inch\r\nRightUnit=um\r\nRightAccuracy=0.#\r\n");
    program.desk().startProcess("eagle.exe");
    program.desk().openWindow("Board - C:\\one.brd - EAGLE");
    REQUIRE(program.start());
    program.ticks(1);
    REQUIRE(program.form().calculators.size() == 2);
    frmMil& form = *program.form().calculators[1];
    CHECK(form.labUnit[0].caption() == "mil");
    CHECK(form.labUnit[1].caption() == "mm");
    typeInto(form.txtSize[0], "1");
    CHECK(form.txtSize[0].text() == "10");
    CHECK(form.txtSize[1].text() == "0.3");
}

TEST_CASE("its routines record themselves") {
    Calculator calculator;
    calculator.release(0, tabKey);
    CHECK(store::currentRoutine == "convert");
}

TEST_SUITE_END();
