#include "setup/ObjFiledialog.h"

#include "platform/dialogs.h"
#include "platform/files.h"
#include "runtime/runtimeError.h"
#include "runtime/text.h"
#include "runtime/western.h"

namespace setup {

namespace {

constexpr char nul = '\0';
constexpr std::size_t emptyBuffer = 512;
constexpr std::size_t filledBuffer = 513;

std::string terminated(std::string_view text) {
    return std::string(text).append(1, nul);
}

/// Does one step; a failure of it is shown and the step done again.
template <typename Step>
void repeatedly(const char* title, Step step) {
    for (;;) {
        try {
            step();
            return;
        } catch (const runtime::RuntimeError& error) {
            platform::msgBox(error.what(), 0, title);
        }
    }
}

} // namespace

ObjFiledialog::ObjFiledialog() : defaultExt_(1, nul), fileName_(emptyBuffer, nul) {
    repeatedly("Error_Class_Initialize", [this] { initDir_ = terminated(platform::currentDirectory()); });
}

void ObjFiledialog::setDefaultExt(std::string_view extension) {
    defaultExt_ = terminated(extension);
}

void ObjFiledialog::setDialogTitle(std::string_view title) {
    dialogTitle_ = terminated(title);
}

void ObjFiledialog::setFilename(std::string_view name) {
    fileName_ = name;
    if (fileName_.size() < filledBuffer)
        fileName_.resize(filledBuffer, nul);
}

void ObjFiledialog::setFilter(std::string_view filter) {
    constexpr std::string_view end("\0\0", 2);
    filter_ = filter;
    if (!filter.ends_with(end))
        filter_ += end;
}

void ObjFiledialog::setInitDir(std::string_view folder) {
    initDir_ = terminated(folder);
}

std::string ObjFiledialog::buildFilter() {
    std::string list;
    for (std::size_t index = 1; index < filterText_.size(); ++index)
        if (!filterText_[index].empty() && !filterSuffix_[index].empty())
            list += terminated(filterText_[index]) + terminated(filterSuffix_[index]);
    if (!filter_.empty()) {
        filter_.resize(filter_.find_last_not_of(nul) + 1);
        list = terminated(filter_) + list;
    }
    if (list.empty())
        list = terminated("All Files") + "*.*";
    return list.append(2, nul);
}

void ObjFiledialog::CheckFlags(std::string_view intention) {
    constexpr std::int32_t openFlags = 0x1801; // read-only ticked, path and file must exist
    constexpr std::int32_t saveFlags = 0x0806; // ask before overwriting, no read-only box, path must exist
    if (flags_ != 0)
        return;
    if (intention == "Open")
        flags_ = openFlags;
    else if (intention == "Save")
        flags_ = saveFlags;
    else
        platform::msgBox(std::string("Unbekannte Intention: ").append(intention), platform::criticalStyle,
                         "CheckFlags");
}

std::string ObjFiledialog::ShowOpen(platform::HWND hWnd) {
    const std::string list = buildFilter();
    CheckFlags("Open");
    if (dialogTitle_.empty())
        dialogTitle_ = runtime::western("Datei \xF6"
                                        "ffnen");
    dialogTitle_ += nul; // Kept: also behind a title that has its NUL, and once more with every call
    return show(hWnd, list, "Error_ShowOpen", platform::GetOpenFileNameA);
}

std::string ObjFiledialog::ShowSave(platform::HWND hWnd) {
    const std::string list = buildFilter();
    CheckFlags("Save");
    if (dialogTitle_.empty())
        dialogTitle_ = terminated("Datei speichern unter");
    return show(hWnd, list, "Error_ShowSave", platform::GetSaveFileNameA);
}

std::string ObjFiledialog::show(platform::HWND hWnd, const std::string& filterList, const char* errorTitle,
                                int (*dialog)(platform::OPENFILENAMEA&)) {
    std::string buffer = fileName_;
    platform::OPENFILENAMEA record;
    record.lStructSize = platform::fileDialogRecordSize;
    record.hwndOwner = hWnd;
    record.lpstrFilter = filterList.c_str();
    record.nFilterIndex = 1;
    record.lpstrFile = buffer.data();
    record.nMaxFile = static_cast<std::uint32_t>(buffer.size());
    record.lpstrInitialDir = initDir_.c_str();
    record.lpstrTitle = dialogTitle_.c_str();
    record.Flags = static_cast<std::uint32_t>(flags_);
    record.lpstrDefExt = defaultExt_.c_str();
    int confirmed = 0;
    repeatedly(errorTitle, [&] { confirmed = dialog(record); });
    fileName_ = confirmed != 0 ? std::string(runtime::untilNul(buffer)) : std::string();
    return fileName_;
}

} // namespace setup
