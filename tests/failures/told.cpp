#include "failures/told.h"

#include <algorithm>
#include <string_view>

namespace failures {

Told outcomeOf(desktop::Program& program, const std::map<std::string, std::string>& settingsBefore) {
    Told told;
    told.settingsBefore = settingsBefore;
    told.settingsAfter = settingsOf(program.desk().settings());
    // A program that does not come to the end of its writes leaves them under the first name.
    const auto unfinished = program.desk().fileText("C:\\kestrel\\kestrel.sav");
    told.settingsKept = settingsOf(
        unfinished ? *unfinished : program.desk().fileText("C:\\kestrel\\kestrel.bak").value_or(""));
    told.facts = factsOf(program);
    if (!program.desk().ended) {
        const std::size_t hosted = program.hosted(store::EditorKind::board);
        program.desk().openWindow("1 Board - C:\\later.brd - EAGLE");
        program.ticks(2);
        told.facts["worksOn"] = program.hosted(store::EditorKind::board) == hosted + 1 ? "yes" : "no";
    }
    return told;
}

int errorOf(const Told& told) {
    constexpr std::string_view begin = "Run-time error '";
    const auto messages = told.facts.find("messages");
    if (told.facts.at("ended") == "no" || messages == told.facts.end())
        return 0;
    const std::size_t place = messages->second.rfind(begin);
    return place == std::string::npos ? 0 : std::stoi(messages->second.substr(place + begin.size()));
}

bool oldOrNew(const Told& told, const Told& whole) {
    const auto valueIn = [](const std::map<std::string, std::string>& file, const std::string& key) {
        const auto found = file.find(key);
        return found == file.end() ? std::string() : found->second;
    };
    const auto sound = [&](const std::string& key) {
        const std::string value = valueIn(told.settingsAfter, key);
        return value == valueIn(whole.settingsBefore, key) || value == valueIn(whole.settingsAfter, key);
    };
    return std::ranges::all_of(told.settingsAfter, [&](const auto& each) { return sound(each.first); }) &&
           std::ranges::all_of(whole.settingsAfter, [&](const auto& each) { return sound(each.first); });
}

} // namespace failures
