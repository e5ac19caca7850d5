// Each call of the platform fails once: the k-th of a story, for all k.
#include "failures/outcomes.h"
#include "failures/seed.h"
#include "failures/stories.h"

#include "desktop/faults.h"
#include "fuzz/random.h"
#include "runtime/text.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <set>
#include <vector>

using desktop::faults;
using failures::Facts;
using failures::Outcome;
using failures::Story;

namespace {

struct Told {
    Facts facts;
    std::string failed;
    int calls = 0;
    std::map<std::string, std::string> settingsBefore;
    std::map<std::string, std::string> settingsAfter;
    std::map<std::string, std::string> settingsKept; ///< in the file with the old ones
};

/// Tells a story; its call with the number `failing` fails, none with 0.
Told tell(const Story& story, int failing) {
    desktop::Program program;
    story.begin(program);
    Told told;
    told.settingsBefore = failures::settingsOf(program.desk().settings());
    faults().watch(failing);
    story.tell(program);
    faults().stop();
    told.failed = faults().failed();
    told.calls = faults().calls();
    told.settingsAfter = failures::settingsOf(program.desk().settings());
    told.settingsKept =
        failures::settingsOf(program.desk().fileText("C:\\kestrel\\kestrel.bak").value_or(""));
    told.facts = failures::factsOf(program);
    if (!program.desk().ended) {
        const std::size_t hosted = program.hosted(store::EditorKind::board);
        program.desk().openWindow("1 Board - C:\\later.brd - EAGLE");
        program.ticks(2);
        told.facts["worksOn"] = program.hosted(store::EditorKind::board) == hosted + 1 ? "yes" : "no";
    }
    return told;
}

std::set<std::string> differing(const Facts& some, const Facts& others) {
    std::set<std::string> names;
    for (const Facts* one : {&some, &others})
        for (const auto& [name, value] : *one) {
            const auto found = (one == &some ? others : some).find(name);
            if (found == (one == &some ? others : some).end() || found->second != value)
                names.insert(name);
        }
    return names;
}

/// Whether a fact is one of the names, which blanks divide.
bool isAmong(const std::string& fact, const char* names) {
    return (" " + std::string(names) + " ").find(" " + fact + " ") != std::string::npos;
}

bool fits(const Outcome& outcome, const Story& story, const Told& told) {
    return outcome.call == told.failed &&
           (outcome.story == nullptr || std::string(outcome.story) == story.name);
}

/// What the program has told of when it ended, 0 if it has not ended by an error.
int errorOf(const Told& told) {
    constexpr std::string_view begin = "Run-time error '";
    const auto messages = told.facts.find("messages");
    if (told.facts.at("ended") == "no" || messages == told.facts.end())
        return 0;
    const std::size_t place = messages->second.rfind(begin);
    return place == std::string::npos ? 0 : std::stoi(messages->second.substr(place + begin.size()));
}

/// Each value of the settings file is the one before the story or the one that it would have written.
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

/// Lets one call fail and compares what comes of it with the table. What has differed is put into `seen`.
void tryCall(const Story& story, const Told& whole, int failing,
             std::map<const Outcome*, std::set<std::string>>& seen) {
    const Told told = tell(story, failing);
    CAPTURE(story.name);
    CAPTURE(failing);
    CAPTURE(told.failed);
    REQUIRE_FALSE(told.failed.empty());
    const int error = errorOf(told);
    // A key that could not be written is missing where its section was removed before: then the old settings
    // are kept beside it.
    if (error != 0 || told.failed == "WritePrivateProfileStringA")
        CHECK((oldOrNew(told, whole) || told.settingsKept == whole.settingsBefore));
    const std::set<std::string> others = differing(whole.facts, told.facts);
    bool known = false;
    for (const Outcome& outcome : failures::outcomes) {
        if (!fits(outcome, story, told) || outcome.error != error)
            continue;
        if (error != 0) {
            CHECK(told.facts.at("tray") == "no icon");
            seen[&outcome].insert("ended");
            known = true;
        } else if (std::ranges::all_of(others,
                                       [&](const auto& fact) { return isAmong(fact, outcome.differs); })) {
            seen[&outcome].insert(others.begin(), others.end());
            known = true;
        }
    }
    std::string differ;
    for (const std::string& fact : others)
        differ += fact + ": " + (told.facts.contains(fact) ? told.facts.at(fact) : "") + "\n";
    CHECK_MESSAGE(known, differ);
}

/// All the calls of a story, or a sample of them.
std::vector<int> chosen(int calls) {
    std::vector<int> numbers;
    constexpr std::size_t sample = 30;
    fuzz::Random random(failures::seed());
    if (failures::all())
        for (int number = 1; number <= calls; ++number)
            numbers.push_back(number);
    else
        for (std::size_t count = 0; count < sample; ++count)
            numbers.push_back(1 + static_cast<int>(random.below(static_cast<std::size_t>(calls))));
    return numbers;
}

} // namespace

TEST_SUITE_BEGIN("failures/calls");

TEST_CASE("each call of the platform fails once, with the outcome that is stated") {
    MESSAGE("KESTREL_SEED=", failures::seed());
    std::map<const Outcome*, std::set<std::string>> seen;
    for (const Story& story : failures::stories) {
        const Told whole = tell(story, 0);
        REQUIRE((whole.facts.at("ended") == "yes") == (std::string(story.name) == "exit"));
        for (const int number : chosen(whole.calls))
            tryCall(story, whole, number, seen);
    }
    if (!failures::all())
        return;
    // The table promises nothing that does not happen.
    for (const Outcome& outcome : failures::outcomes) {
        const std::string of = std::string(outcome.call) + ": " + outcome.because;
        CHECK_MESSAGE(seen.contains(&outcome), of);
        for (const std::string& fact : runtime::split(outcome.differs, " "))
            CHECK_MESSAGE((fact.empty() || seen[&outcome].contains(fact)), (of + ": " + fact));
    }
}

TEST_SUITE_END();
