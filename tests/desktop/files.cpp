// Files of the simulated desktop and the operations on them.
#include "desktop/desktop.h"
#include "desktop/faults.h"
#include "desktop/folders.h"

#include "platform/files.h"
#include "runtime/characters.h"
#include "runtime/runtimeError.h"
#include "runtime/text.h"

#include <algorithm>

namespace desktop {

namespace {

std::string bareName(const std::string& path) {
    return path.substr(runtime::findLastText(path, "\\") + 1);
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

/// Whether a file may be put in the place of what has this path.
bool mayReplace(const std::string& path) {
    const File* there = world().file(path);
    const std::string in = path.substr(0, runtime::findLastText(path, "\\"));
    const File* folder = world().file(in);
    return folderExists(in) && (folder == nullptr || !folder->readOnly) &&
           (there == nullptr || !(there->directory || there->readOnly || there->locked));
}

/// False if the one cannot be read or the other not be written.
bool copyContent(const std::string& from, const std::string& to) {
    const File* file = world().file(from);
    if (file == nullptr || file->directory || file->locked || !mayReplace(to))
        return false;
    world().writeFile(to, std::string(file->content));
    return true;
}

} // namespace

std::string pathKey(const std::string& path) {
    std::string key;
    std::string last;
    for (std::string_view rest = path; !rest.empty(); rest.remove_prefix(runtime::characterSize(rest))) {
        std::string character(rest.substr(0, runtime::characterSize(rest)));
        if (character == "/")
            character = "\\";
        if (character != "\\" || last != "\\")
            key += character;
        last = character;
    }
    return runtime::lowerCase(key);
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

void World::cutOff(const std::string& server) {
    servers[runtime::lowerCase(server)].away = true;
}

bool World::reach(const std::string& path) {
    constexpr std::int64_t patience = 3000;
    constexpr std::int64_t pause = 60'000;
    // What stands in front of a command line's path is no part of it.
    const std::string key = pathKey(path.starts_with('"') ? path.substr(1) : path);
    for (auto& [name, server] : servers) {
        if (!key.starts_with("\\" + name + "\\"))
            continue;
        if (now < server.missingUntil)
            return false;
        ++server.asked;
        if (!server.away)
            return true;
        now += patience;
        server.missingUntil = now + pause;
        return false;
    }
    return true;
}

} // namespace desktop

namespace platform {

std::string dir(std::string_view path) {
    const desktop::Call call("dir");
    if (call.fails())
        return {};
    const std::string key = desktop::pathKey(std::string(path));
    const std::size_t slash = runtime::findLastText(key, "\\");
    if (!desktop::world().reach(std::string(path)))
        return {};
    if (key.empty() || slash == std::string::npos || slash + 1 == key.size())
        return {};
    for (const auto& [candidate, file] : desktop::world().files) {
        if (file.directory || file.hidden || file.system || runtime::findLastText(candidate, "\\") != slash ||
            candidate.compare(0, slash, key, 0, slash) != 0)
            continue;
        if (desktop::matches(std::string_view(candidate).substr(slash + 1),
                             std::string_view(key).substr(slash + 1)))
            return file.storedName;
    }
    return {};
}

void kill(std::string_view path) {
    const desktop::Call call("kill");
    if (call.fails())
        throw runtime::RuntimeError(runtime::ErrorNumber::permissionDenied);
    const desktop::File* file = desktop::world().file(std::string(path));
    if (file == nullptr)
        throw runtime::RuntimeError(runtime::ErrorNumber::fileNotFound);
    if (!file->directory && file->locked)
        throw runtime::RuntimeError(runtime::ErrorNumber::permissionDenied);
    if (file->directory || file->readOnly)
        throw runtime::RuntimeError(runtime::ErrorNumber::pathFileAccess);
    desktop::world().removeFile(std::string(path));
}

bool copyFile(std::string_view from, std::string_view to, Existing existing) {
    const desktop::Call call("copyFile");
    const bool kept = existing == Existing::kept && desktop::world().file(std::string(to)) != nullptr;
    return !call.fails() && !kept && desktop::copyContent(std::string(from), std::string(to));
}

bool renameFile(std::string_view from, std::string_view to) {
    const desktop::Call call("renameFile");
    if (call.fails() || !desktop::copyContent(std::string(from), std::string(to)))
        return false;
    desktop::world().removeFile(std::string(from));
    return true;
}

std::string currentDirectory() {
    const desktop::Call call("currentDirectory");
    if (call.fails())
        throw runtime::RuntimeError(runtime::ErrorNumber::permissionDenied);
    auto& failures = desktop::world().directoryFailures;
    if (!failures.empty()) {
        const runtime::RuntimeError failure = failures.front();
        failures.pop_front();
        throw failure;
    }
    return desktop::world().currentDirectory;
}

} // namespace platform
