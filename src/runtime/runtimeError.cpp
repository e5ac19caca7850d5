#include "runtime/runtimeError.h"

namespace runtime {

std::string errorDescription(ErrorNumber number, std::int32_t resource) {
    switch (number) {
    case ErrorNumber::invalidCall:
        return "Invalid procedure call or argument";
    case ErrorNumber::overflow:
        return "Overflow";
    case ErrorNumber::outOfMemory:
        return "Out of memory";
    case ErrorNumber::subscriptOutOfRange:
        return "Subscript out of range";
    case ErrorNumber::typeMismatch:
        return "Type mismatch";
    case ErrorNumber::fileNotFound:
        return "File not found";
    case ErrorNumber::fileAlreadyOpen:
        return "File already open";
    case ErrorNumber::diskFull:
        return "Disk full";
    case ErrorNumber::permissionDenied:
        return "Permission denied";
    case ErrorNumber::pathFileAccess:
        return "Path/File access error";
    case ErrorNumber::pathNotFound:
        return "Path not found";
    case ErrorNumber::resourceNotFound:
        return "Resource with identifier '" + std::to_string(resource) + "' not found";
    case ErrorNumber::printerError:
        return "Printer error";
    case ErrorNumber::clipboardNotOpened:
        return "Can't open Clipboard";
    case ErrorNumber::keyNotUnique:
        return "Key is not unique in collection";
    }
    return {};
}

std::string unhandledErrorText(const RuntimeError& error) {
    return "Run-time error '" + std::to_string(static_cast<std::int32_t>(error.number)) + "':\r\n\r\n" +
           error.what();
}

} // namespace runtime
