#include "store/buttonLists.h"

#include "runtime/characters.h"
#include "runtime/numbers.h"
#include "runtime/runtimeError.h"
#include "store/mends.h"
#include "store/rowKeys.h"
#include "store/settings.h"

namespace store {

namespace {

constexpr std::array<ListOfKind, 3> lists = {{
    {"board", 2, &boardButtons},
    {"schem", 3, &schemButtons},
    {"libr", 4, &librButtons},
}};

constexpr std::string_view eagleToken = "{eaglepath}";

bool selected(const ListOfKind& list, std::int16_t selector) {
    return selector == 0 || selector == list.selector;
}

/// Writes a list anew and tells whether a live row needs the path of EAGLE.
bool saveList(const ListOfKind& list) {
    const ButtonList& buttons = *list.buttons;
    if (!buttons.allocated())
        return false;
    delini(list.section);
    bool needsEagle = false;
    for (std::int32_t row = 1; row <= buttons.upperBound(); ++row) {
        const ToolButton& button = buttons[row];
        if (button.live != 1)
            continue;
        const std::string number = std::to_string(row);
        setini(list.section, number + word::name, button.name);
        setini(list.section, number + word::path, button.path);
        setini(list.section, number + word::tooltip, button.tooltip);
        setini(list.section, number + word::param, button.param);
        setini(list.section, number + word::icon, button.icon);
        const RowNumbers numbers =
            button.asRead.value_or(RowNumbers{std::to_string(button.dialog), std::to_string(button.type)});
        setini(list.section, number + word::dialog, numbers.dialog);
        setini(list.section, number + word::type, numbers.type);
        // Kept: exact in case, unlike the expansion's own test.
        needsEagle |= runtime::findText(button.icon, eagleToken) != std::string::npos ||
                      runtime::findText(button.path, eagleToken) != std::string::npos;
    }
    return needsEagle;
}

std::optional<std::int16_t> readableInt16(const std::string& text) {
    try {
        return runtime::toInt16(text);
    } catch (const runtime::RuntimeError&) {
        return std::nullopt;
    }
}

void takeNumbers(ToolButton& button, const RowNumbers& numbers) {
    // Kept: one that cannot be read is an error.
    if (!mended(Mend::unreadableRows)) {
        button.dialog = runtime::toInt16(numbers.dialog);
        button.type = runtime::toInt16(numbers.type);
        return;
    }
    button.dialog = readableInt16(numbers.dialog).value_or(dialogKind::none);
    const std::optional<std::int16_t> type = readableInt16(numbers.type);
    button.type = type.value_or(entryType::unreadable);
    button.asRead = type ? std::nullopt : std::optional(numbers);
}

} // namespace

ToolButton& ButtonList::operator[](std::int32_t index) {
    if (static_cast<std::size_t>(index) >= rows_.size()) // a negative index is beyond any size
        throw runtime::RuntimeError(runtime::ErrorNumber::subscriptOutOfRange);
    return rows_[static_cast<std::size_t>(index)];
}

const ToolButton& ButtonList::operator[](std::int32_t index) const {
    return const_cast<ButtonList&>(*this)[index];
}

const ListOfKind& listOf(EditorKind kind) {
    return lists[static_cast<std::size_t>(kind)];
}

void loadList(EditorKind kind) {
    const ListOfKind& list = listOf(kind);
    for (std::int32_t row = 1;; ++row) {
        const std::string number = std::to_string(row);
        const auto read = [&](const char* field) { return getini(list.section, number + field); };
        if (read(word::name).empty())
            return;
        list.buttons->redim(row);
        ToolButton& button = (*list.buttons)[row];
        button.name = read(word::name);
        button.path = read(word::path);
        button.tooltip = read(word::tooltip);
        button.param = read(word::param);
        button.icon = read(word::icon);
        takeNumbers(button, {read(word::dialog), read(word::type)});
        button.live = 1;
    }
}

void loadButtonLists(const std::int16_t& selector) {
    for (const EditorKind kind : editorKinds)
        if (selected(listOf(kind), selector))
            loadList(kind);
}

std::int16_t saveButtonLists(const std::int16_t& selector) {
    bool needsEagle = false;
    for (const ListOfKind& list : lists)
        if (selected(list, selector) && saveList(list))
            needsEagle = true;
    return needsEagle ? -1 : 0;
}

} // namespace store
