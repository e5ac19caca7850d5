// The failure of the language's runtime: a number and its description.
//
// Thrown where the runtime would raise one and caught by the guard around every entry from the outside.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <utility>

namespace runtime {

enum class ErrorNumber : std::int32_t {
    invalidCall = 5,
    overflow = 6,
    outOfMemory = 7,
    subscriptOutOfRange = 9,
    typeMismatch = 13,
    fileNotFound = 53,
    fileAlreadyOpen = 55,
    diskFull = 61,
    permissionDenied = 70,
    pathFileAccess = 75,
    pathNotFound = 76,
    resourceNotFound = 326,
    printerError = 482,
    clipboardNotOpened = 521,
    keyNotUnique = 35602,
};

/// The runtime's own description of an error; `resource` is the identifier that number 326 names.
std::string errorDescription(ErrorNumber number, std::int32_t resource = 0);

class RuntimeError : public std::exception {
  public:
    explicit RuntimeError(ErrorNumber errorNumber)
        : RuntimeError(errorNumber, errorDescription(errorNumber)) {}
    RuntimeError(ErrorNumber errorNumber, std::string text)
        : number(errorNumber), description(std::move(text)) {}

    [[nodiscard]] const char* what() const noexcept override { return description.c_str(); }

    ErrorNumber number;
    std::string description; ///< with its NULs, where what() ends at the first
};

/// The text of the message that an unhandled error ends the program with.
std::string unhandledErrorText(const RuntimeError& error);

} // namespace runtime
