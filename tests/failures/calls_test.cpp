// Each call of the platform fails once: the k-th of a story, for all k.
#include "failures/outcomes.h"
#include "failures/seed.h"
#include "failures/stories.h"
#include "failures/told.h"

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

/// A story with the calls of the platform in it.
struct Attempt : failures::Told {
    std::string failed; ///< the call that has failed; empty if none has
    int calls = 0;
};

/// Tells a story; its call with the number `failing` fails, none with 0.
Attempt tell(const Story& story, int failing) {
    desktop::Program program;
    story.begin(program);
    const auto before = failures::settingsOf(program.desk().settings());
    faults().watch(failing);
    story.tell(program);
    faults().stop();
    return {failures::outcomeOf(program, before), faults().failed(), faults().calls()};
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

bool fits(const Outcome& outcome, const Story& story, const Attempt& told) {
    return outcome.call == told.failed &&
           (outcome.story == nullptr || std::string(outcome.story) == story.name);
}

/// Lets one call fail and compares what comes of it with the table. What has differed is put into `seen`.
void tryCall(const Story& story, const Attempt& whole, int failing,
             std::map<const Outcome*, std::set<std::string>>& seen) {
    const Attempt told = tell(story, failing);
    CAPTURE(std::string(story.name));
    CAPTURE(failing);
    CAPTURE(told.failed);
    REQUIRE_FALSE(told.failed.empty());
    const int error = failures::errorOf(told);
    // A key that could not be written is missing where its section was removed before: then the old settings
    // are kept beside it.
    if (error != 0 || told.failed == "WritePrivateProfileStringA")
        CHECK((failures::oldOrNew(told, whole) || told.settingsKept == whole.settingsBefore));
    // OK writes what the setup has read: what it could not read is in the file with the old settings.
    if (told.failed == "GetPrivateProfileStringA" && !told.settingsKept.empty())
        CHECK(told.settingsKept == whole.settingsBefore);
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
        const Attempt whole = tell(story, 0);
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
