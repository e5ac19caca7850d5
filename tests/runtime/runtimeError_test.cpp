#include "runtime/runtimeError.h"

#include <doctest/doctest.h>

using runtime::ErrorNumber;
using runtime::RuntimeError;

TEST_SUITE_BEGIN("runtime/runtimeError");

TEST_CASE("each error has the runtime's number and description") {
    struct Row {
        ErrorNumber number;
        int value;
        const char* description;
    };
    const Row rows[] = {
        {ErrorNumber::invalidCall, 5, "Invalid procedure call or argument"},
        {ErrorNumber::overflow, 6, "Overflow"},
        {ErrorNumber::subscriptOutOfRange, 9, "Subscript out of range"},
        {ErrorNumber::typeMismatch, 13, "Type mismatch"},
        {ErrorNumber::fileNotFound, 53, "File not found"},
        {ErrorNumber::fileAlreadyOpen, 55, "File already open"},
        {ErrorNumber::diskFull, 61, "Disk full"},
        {ErrorNumber::permissionDenied, 70, "Permission denied"},
        {ErrorNumber::pathFileAccess, 75, "Path/File access error"},
        {ErrorNumber::pathNotFound, 76, "Path not found"},
        {ErrorNumber::printerError, 482, "Printer error"},
        {ErrorNumber::clipboardNotOpened, 521, "Can't open Clipboard"},
        {ErrorNumber::keyNotUnique, 35602, "Key is not unique in collection"},
    };
    for (const Row& row : rows) {
        CHECK(static_cast<int>(row.number) == row.value);
        CHECK(std::string(RuntimeError(row.number).what()) == row.description);
    }
}

TEST_CASE("a number that is none of them has no description") {
    CHECK(runtime::errorDescription(ErrorNumber{1}).empty());
}

TEST_CASE("a missing resource is named in its description") {
    CHECK(static_cast<int>(ErrorNumber::resourceNotFound) == 326);
    CHECK(runtime::errorDescription(ErrorNumber::resourceNotFound, 11052) ==
          "Resource with identifier '11052' not found");
}

TEST_CASE("the message of an unhandled error has its number, an empty line and the description") {
    CHECK(runtime::unhandledErrorText(RuntimeError(ErrorNumber::typeMismatch)) ==
          "Run-time error '13':\r\n\r\nType mismatch");
}

TEST_SUITE_END();
