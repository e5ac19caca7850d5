#include "platform/printer.h"

#include "desktop/desktop.h"

namespace {

using desktop::world;

} // namespace

namespace platform {

void printLine(std::string_view line) {
    if (world().noPrinter) {
        world().printing.clear();
        throw runtime::RuntimeError(runtime::ErrorNumber::printerError);
    }
    world().printing.emplace_back(line);
}

void endPrintJob() {
    if (world().printing.empty())
        return;
    world().printed.push_back(std::move(world().printing));
    world().printing.clear();
}

} // namespace platform
