// Files of the simulated desktop and the operations on them.
#include "desktop/desktop.h"

#include "platform/system.h"
#include "platform/textFile.h"
#include "runtime/runtimeError.h"
#include "runtime/text.h"

#include <algorithm>

namespace desktop {

namespace {

std::string bareName(const std::string& path) {
    return path.substr(path.find_last_of('\\') + 1);
}

bool matches(std::string_view name, std::string_view pattern) {
    if (pattern.empty())
        return name.empty();
    if (pattern.front() == '*') {
        for (std::size_t taken = 0; taken <= name.size(); ++taken)
            if (matches(name.substr(taken), pattern.substr(1)))
                return true;
        return false;
    }
    return !name.empty() && (pattern.front() == '?' || pattern.front() == name.front()) &&
           matches(name.substr(1), pattern.substr(1));
}

[[noreturn]] void fail(runtime::ErrorNumber number) {
    throw runtime::RuntimeError(number);
}

bool folderExists(const std::string& path) {
    const std::string key = pathKey(path);
    if (const File* found = world().file(path))
        return found->directory;
    // The drive's root, and the folder that the program has been put into.
    return key == "c:" || key == "c:\\kestrel" || std::ranges::any_of(world().files, [&](const auto& entry) {
               return entry.first.starts_with(key + "\\");
           });
}

File& existing(const std::string& path) {
    File* found = world().file(path);
    if (found == nullptr || found->directory)
        fail(runtime::ErrorNumber::fileNotFound);
    return *found;
}

/// The file at a path that is to be written, made if need be.
File& writable(const std::string& path) {
    const std::string folder = path.substr(0, path.find_last_of('\\'));
    if (!folderExists(folder))
        fail(runtime::ErrorNumber::pathNotFound);
    File* found = world().file(path);
    if (found != nullptr && found->locked)
        fail(runtime::ErrorNumber::permissionDenied);
    const File* around = world().file(folder);
    if (found != nullptr ? found->directory || found->readOnly : around != nullptr && around->readOnly)
        fail(runtime::ErrorNumber::pathFileAccess);
    if (found == nullptr)
        world().writeFile(path, "");
    return *world().file(path);
}

} // namespace

std::string pathKey(const std::string& path) {
    std::string key;
    for (char character : path) {
        if (character == '/')
            character = '\\';
        if (character == '\\' && !key.empty() && key.back() == '\\')
            continue;
        key += character;
    }
    return runtime::lowerCase(key);
}

void World::writeFile(const std::string& path, const std::string& content) {
    File& written = files[pathKey(path)];
    written.content = content;
    if (written.storedName.empty())
        written.storedName = bareName(path);
}

void World::writeSettings(const std::string& content) {
    writeFile(programFolder + "\\kestrel.ini", content);
}

std::string World::settings() {
    return fileText(programFolder + "\\kestrel.ini").value_or("");
}

File* World::file(const std::string& path) {
    const auto found = files.find(pathKey(path));
    return found == files.end() ? nullptr : &found->second;
}

std::optional<std::string> World::fileText(const std::string& path) {
    const File* found = file(path);
    return found == nullptr ? std::nullopt : std::optional(found->content);
}

void World::removeFile(const std::string& path) {
    files.erase(pathKey(path));
}

} // namespace desktop

namespace platform {

std::string dir(std::string_view path) {
    const std::string key = desktop::pathKey(std::string(path));
    const std::size_t slash = key.find_last_of('\\');
    if (key.empty() || slash == std::string::npos || slash + 1 == key.size())
        return {};
    for (const auto& [candidate, file] : desktop::world().files) {
        if (file.directory || file.hidden || file.system || candidate.find_last_of('\\') != slash ||
            candidate.compare(0, slash, key, 0, slash) != 0)
            continue;
        if (desktop::matches(std::string_view(candidate).substr(slash + 1),
                             std::string_view(key).substr(slash + 1)))
            return file.storedName;
    }
    return {};
}

void kill(std::string_view path) {
    if (const desktop::File* found = desktop::world().file(std::string(path));
        found != nullptr && found->directory)
        desktop::fail(runtime::ErrorNumber::pathFileAccess);
    const desktop::File& file = desktop::existing(std::string(path));
    if (file.locked)
        desktop::fail(runtime::ErrorNumber::permissionDenied);
    if (file.readOnly)
        desktop::fail(runtime::ErrorNumber::pathFileAccess);
    desktop::world().removeFile(std::string(path));
}

std::string readFirstLine(std::string_view path) {
    const std::string whole(path);
    const std::size_t slash = whole.find_last_of('\\');
    if (slash != std::string::npos && !desktop::folderExists(whole.substr(0, slash)))
        desktop::fail(runtime::ErrorNumber::pathNotFound);
    if (const desktop::File* found = desktop::world().file(whole); found != nullptr && found->directory)
        desktop::fail(runtime::ErrorNumber::pathFileAccess);
    const desktop::File& file = desktop::existing(whole);
    if (file.locked)
        desktop::fail(runtime::ErrorNumber::permissionDenied);
    constexpr std::size_t longestLine = 1U << 20U;
    return file.content.substr(0, std::min(file.content.find_first_of("\r\n"), longestLine));
}

void appendToFile(std::string_view path, std::string_view text) {
    desktop::writable(std::string(path)).content += text;
}

void writeFile(std::string_view path, std::string_view text) {
    desktop::writable(std::string(path)).content = text;
}

const std::string& programFolder() {
    return desktop::world().programFolder;
}

std::string currentDirectory() {
    auto& failures = desktop::world().directoryFailures;
    if (!failures.empty()) {
        const runtime::RuntimeError failure = failures.front();
        failures.pop_front();
        throw failure;
    }
    return desktop::world().currentDirectory;
}

} // namespace platform
