#include "core/runRequest.h"

#include "platform/system.h"

#include <string>

namespace core {

namespace {

std::string requestFile() {
    return platform::programFolder() + "\\execute.txt";
}

} // namespace

void dropRunRequest() {
    const std::string file = requestFile();
    if (!platform::dir(file).empty())
        platform::kill(file);
}

void lookForRunRequest(Hauptform& /*form*/) {}

void handleRunRequest(Hauptform& /*form*/) {}

} // namespace core
