#include "codePages.h"
#include "errors/report.h"

#include <doctest/doctest.h>

using errors::ErrPtnr;
using errors::Variant;
using report::Inside;

namespace {

void call(ErrPtnr& form, std::string routine) {
    form.CallStack(routine);
}

/// The line of a parameter with this value.
std::string parameterLine(const Variant& value) {
    ErrPtnr form;
    call(form, "routine");
    form.CallStackParam("p", value);
    return Inside::entries(form).front();
}

} // namespace

TEST_SUITE_BEGIN("errors/trace");

TEST_CASE("a routine's line is the time, one blank and the caller's text") {
    const desktop::Session session;
    desktop::world().startDate = report::afternoon;
    ErrPtnr form;
    call(form, "loadLists");
    CHECK(Inside::entries(form) == std::deque<std::string>{"14:25:36 loadLists"});
}

TEST_CASE("an empty text gives a line of time and one blank") {
    const desktop::Session session;
    desktop::world().startDate = report::afternoon;
    ErrPtnr form;
    call(form, "");
    CHECK(Inside::entries(form).front() == "14:25:36 ");
}

TEST_CASE("a routine's line at midnight has the time too") {
    const desktop::Session session;
    desktop::world().startDate = 38845;
    ErrPtnr form;
    call(form, "tick");
    CHECK(Inside::entries(form).front() == "00:00:00 tick");
}

TEST_CASE("the caller's string has the time in front of it, and a second call stacks a second one") {
    const desktop::Session session;
    desktop::world().startDate = report::afternoon;
    ErrPtnr form;
    std::string A = "setini";
    form.CallStack(A);
    CHECK(A == "14:25:36 setini");
    desktop::world().run(2000);
    form.CallStack(A);
    CHECK(A == "14:25:38 14:25:36 setini");
    CHECK(Inside::entries(form) == std::deque<std::string>{"14:25:38 14:25:36 setini", "14:25:36 setini"});
}

TEST_CASE("the newest entry stands on top, parameters above their routine, the later above the earlier") {
    const desktop::Session session;
    desktop::world().startDate = report::afternoon;
    ErrPtnr form;
    call(form, "outer");
    call(form, "inner");
    form.CallStackParam("first", std::int32_t{1});
    form.CallStackParam("second", std::int32_t{2});
    CHECK(Inside::entries(form) ==
          std::deque<std::string>{"\tsecond:\t2", "\tfirst:\t1", "14:25:36 inner", "14:25:36 outer"});
}

TEST_CASE("the forty-first routine pushes out the oldest entry") {
    const desktop::Session session;
    ErrPtnr form;
    for (int entry = 1; entry <= 40; ++entry)
        call(form, "routine " + std::to_string(entry));
    CHECK(Inside::entries(form).size() == 40);
    CHECK(Inside::entries(form).back() == "12:00:00 routine 1");
    call(form, "routine 41");
    CHECK(Inside::entries(form).size() == 40);
    CHECK(Inside::entries(form).front() == "12:00:00 routine 41");
    CHECK(Inside::entries(form).back() == "12:00:00 routine 2");
}

TEST_CASE("the forty-first entry pushes out the oldest one if it is a parameter too") {
    const desktop::Session session;
    ErrPtnr form;
    call(form, "routine");
    for (int entry = 1; entry <= 39; ++entry)
        form.CallStackParam("p", std::int32_t{entry});
    CHECK(Inside::entries(form).back() == "12:00:00 routine");
    form.CallStackParam("p", std::int32_t{40});
    CHECK(Inside::entries(form).size() == 40);
    CHECK(Inside::entries(form).front() == "\tp:\t40");
    CHECK(Inside::entries(form).back() == "\tp:\t1");
}

TEST_CASE("ten thousand entries leave the newest forty") {
    const desktop::Session session;
    ErrPtnr form;
    for (int entry = 1; entry <= 10'000; ++entry) {
        call(form, std::to_string(entry));
        if (entry % 2 == 0)
            form.CallStackParam("p", std::int32_t{entry});
    }
    CHECK(Inside::entries(form).size() == 40);
    CHECK(Inside::entries(form).front() == "\tp:\t10000");
    CHECK(Inside::entries(form)[1] == "12:00:00 10000");
    CHECK(Inside::entries(form).back() == "\tp:\t9974");
}

TEST_CASE("a parameter of an empty trace fails and leaves it empty: a routine's line must come first") {
    const desktop::Session session;
    ErrPtnr form;
    CHECK(report::errorOf([&] { form.CallStackParam("p", std::int32_t{1}); }) == 9);
    CHECK(Inside::entries(form).empty());
    call(form, "routine");
    CHECK(report::errorOf([&] { form.CallStackParam("p", std::int32_t{1}); }) == 0);
    CHECK(Inside::entries(form).size() == 2);
}

TEST_CASE("a parameter's line is a tab, the name, a colon, a tab and the value") {
    const desktop::Session session;
    ErrPtnr form;
    call(form, "routine");
    form.CallStackParam("", "");
    CHECK(Inside::entries(form).front() == "\t:\t");
    form.CallStackParam("file name", std::string("C:\\a\tb"));
    CHECK(Inside::entries(form).front() == "\tfile name:\tC:\\a\tb");
}

TEST_CASE("a value that has no text of its own is shown by its kind") {
    const desktop::Session session;
    CHECK(parameterLine(errors::Array{}) == "\tp:\t[ARRAY]");
    CHECK(parameterLine(errors::Null{}) == "\tp:\t[NULL]");
    CHECK(parameterLine(errors::Empty{}) == "\tp:\t[EMPTY]");
    CHECK(parameterLine(errors::Object{"frmSetup"}) == "\tp:\t[OBJECT:frmSetup]");
    CHECK(parameterLine(errors::Nothing{}) == "\tp:\t[NOTHING]");
    CHECK(parameterLine({}) == "\tp:\t[EMPTY]");
}

TEST_CASE("any other value is converted to a string") {
    const desktop::Session session;
    CHECK(parameterLine("text") == "\tp:\ttext");
    CHECK(parameterLine(std::string(western("\xC4rger"))) == western("\tp:\t\xC4rger"));
    CHECK(parameterLine(std::int32_t{-2147483647 - 1}) == "\tp:\t-2147483648");
    CHECK(parameterLine(std::int16_t{-1}) == "\tp:\t-1");
    CHECK(parameterLine(0.1) == "\tp:\t0.1");
    CHECK(parameterLine(1e15) == "\tp:\t1E+15");
    CHECK(parameterLine(true) == "\tp:\tTrue");
    CHECK(parameterLine(false) == "\tp:\tFalse");
}

TEST_CASE("an error value or a date is shown by its ordinary conversion to a string") {
    const desktop::Session session;
    CHECK(parameterLine(errors::ErrorValue{2042}) == "\tp:\tError 2042");
    CHECK(parameterLine(errors::Date{report::afternoon}) == "\tp:\t08.05.2006 14:25:36");
    CHECK(parameterLine(errors::Date{38845}) == "\tp:\t08.05.2006");
    CHECK(parameterLine(errors::Date{0.75}) == "\tp:\t18:00:00");
    CHECK(parameterLine(errors::Date{-0.75}) == "\tp:\t18:00:00");
    CHECK(parameterLine(errors::Date{0}) == "\tp:\t00:00:00");
    CHECK(parameterLine(errors::Date{-1.25}) == "\tp:\t29.12.1899 06:00:00");
}

TEST_CASE("a date that is none fails and adds no line") {
    const desktop::Session session;
    ErrPtnr form;
    call(form, "routine");
    CHECK(report::errorOf([&] { form.CallStackParam("p", errors::Date{1e9}); }) == 5);
    CHECK(Inside::entries(form).size() == 1);
    // The value's text is made before the trace is looked at.
    ErrPtnr empty;
    CHECK(report::errorOf([&] { empty.CallStackParam("p", errors::Date{1e9}); }) == 5);
}

TEST_CASE("a text up to its first NUL, which may be nothing") {
    CHECK(ErrPtnr::LPSTRToVBString(std::string_view("abc\0def\0", 8)) == "abc");
    CHECK(ErrPtnr::LPSTRToVBString(std::string_view("abc\0", 4)) == "abc");
    CHECK(ErrPtnr::LPSTRToVBString(std::string_view("\0abc", 4)).empty());
}

TEST_CASE("a text without NUL gives an empty string") {
    CHECK(ErrPtnr::LPSTRToVBString("abc").empty());
    CHECK(ErrPtnr::LPSTRToVBString("").empty());
}

TEST_SUITE_END();
