#include "platform/textFile.h"

#include "desktop/desktop.h"
#include "desktop/faults.h"
#include "desktop/folders.h"
#include "runtime/characters.h"
#include "runtime/runtimeError.h"

namespace {

using desktop::world;

[[noreturn]] void fail(runtime::ErrorNumber number) {
    throw runtime::RuntimeError(number);
}

/// The file at a path that is to be written, made if need be.
desktop::File& writable(const std::string& path) {
    const std::string folder = path.substr(0, runtime::findLastText(path, "\\"));
    if (!desktop::folderExists(folder))
        fail(runtime::ErrorNumber::pathNotFound);
    desktop::File* found = world().file(path);
    if (found != nullptr && found->locked)
        fail(runtime::ErrorNumber::permissionDenied);
    const desktop::File* around = world().file(folder);
    if (found != nullptr ? found->directory || found->readOnly : around != nullptr && around->readOnly)
        fail(runtime::ErrorNumber::pathFileAccess);
    if (found == nullptr)
        world().writeFile(path, "");
    return *world().file(path);
}

} // namespace

namespace platform {

std::string readFirstLine(std::string_view path) {
    const desktop::Call call("readFirstLine");
    if (call.fails())
        fail(runtime::ErrorNumber::permissionDenied);
    const std::string whole(path);
    const std::size_t slash = runtime::findLastText(whole, "\\");
    if (slash != std::string::npos && !desktop::folderExists(whole.substr(0, slash)))
        fail(runtime::ErrorNumber::pathNotFound);
    const desktop::File* file = world().file(whole);
    if (file == nullptr)
        fail(runtime::ErrorNumber::fileNotFound);
    if (file->directory)
        fail(runtime::ErrorNumber::pathFileAccess);
    if (file->locked)
        fail(runtime::ErrorNumber::permissionDenied);
    constexpr std::size_t longestLine = 1U << 20U;
    return file->content.substr(0, std::min(file->content.find_first_of("\r\n"), longestLine));
}

void appendToFile(std::string_view path, std::string_view text) {
    writable(std::string(path)).content += text;
}

void writeFile(std::string_view path, std::string_view text) {
    writable(std::string(path)).content = text;
}

} // namespace platform
