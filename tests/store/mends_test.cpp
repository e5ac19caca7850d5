// The switch of the mends.
#include "store/mends.h"

#include "desktop/program.h"

#include <doctest/doctest.h>

#include <string>

using desktop::Program;

namespace {

/// Whether the program that starts with this value has the mends.
bool onWith(const std::string& value) {
    Program program;
    program.desk().writeSettings("[Global]\r\nMEND=" + value + "\r\n");
    REQUIRE(program.start());
    CHECK(program.desk().messageBoxes.empty());
    return store::mendsOn;
}

} // namespace

TEST_SUITE_BEGIN("store/mends");

TEST_CASE("without the key the mends are off, each of them") {
    Program program;
    REQUIRE(program.start());
    using store::Mend;
    for (const Mend mend : {Mend::libraries, Mend::optionButtons, Mend::frontSequence, Mend::afterSave,
                            Mend::typedAsMeant, Mend::unreadableRows, Mend::fileArguments, Mend::noEnd}) {
        store::mendsOn = false;
        CHECK_FALSE(store::mended(mend));
        store::mendsOn = true;
        CHECK(store::mended(mend));
    }
}

TEST_CASE("any number but 0 is on") {
    for (const char* value : {"1", "2", "-1", "0.5", ".01", "1e99", "1e-5", " 1", "01", "1 yes", "\"1\""}) {
        CAPTURE(value);
        CHECK(onWith(value));
    }
}

TEST_CASE("0, nothing and what is no number is off") {
    for (const char* value :
         {"0", "", "0.0", "-0", "0e5", "yes", "on", "true", "x1", "-", ".", "e5", "\x80"}) {
        CAPTURE(value);
        CHECK_FALSE(onWith(value));
    }
}

TEST_CASE("a number beyond a double is on, and no error") {
    CHECK(onWith("1e999"));
    CHECK(onWith("-1e400"));
    CHECK(onWith(std::string(400, '9')));
    CHECK(onWith("1" + std::string(399, '0')));
    // The settings file gives 254 characters of a value: of this number, nothing but zeros.
    CHECK_FALSE(onWith("0." + std::string(400, '0') + "1"));
}

TEST_CASE("the switch is read once, at the start, and never written") {
    Program program;
    program.desk().writeSettings("[global]\r\nmend=1\r\n");
    REQUIRE(program.start());
    program.desk().writeSettings("[global]\r\nmend=0\r\n");
    program.ticks(3);
    CHECK(store::mendsOn);
    CHECK(program.desk().settings() == "[global]\r\nmend=0\r\n");
}

TEST_SUITE_END();
