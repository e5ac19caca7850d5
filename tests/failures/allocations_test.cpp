// Each allocation fails once: the k-th of a story, for all k. And as it is where no memory comes back: each
// from the k-th on.
#include "failures/allocations.h"
#include "failures/seed.h"
#include "failures/stories.h"
#include "failures/told.h"

#include "fuzz/random.h"
#include "runtime/outOfMemory.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <new>
#include <string>
#include <vector>

using failures::Failing;
using failures::Story;
using failures::Told;

namespace {

constexpr int outOfMemory = 7;

/// Error 7 as the program has it, for the length of a test.
struct OutOfMemory {
    OutOfMemory() { runtime::raiseOutOfMemory(); }
    ~OutOfMemory() { std::set_new_handler(nullptr); }
    OutOfMemory(const OutOfMemory&) = delete;
    OutOfMemory& operator=(const OutOfMemory&) = delete;
};

/// Tells a story; its allocation with the number `failing` fails, none with 0. How many it had is put into
/// `allocations`.
Told tell(const Story& story, int failing, Failing how, int& allocations) {
    desktop::Program program;
    story.begin(program);
    const auto before = failures::settingsOf(program.desk().settings());
    failures::watchAllocations(failing, how);
    story.tell(program);
    allocations = failures::stopAllocations();
    return failures::outcomeOf(program, before);
}

/// The settings file, or the one with the old settings, holds a whole one.
bool settingsSound(const Story& story, const Told& told, const Told& whole) {
    if (told.settingsKept == whole.settingsBefore || told.settingsAfter == whole.settingsBefore ||
        told.settingsAfter == whole.settingsAfter)
        return true;
    // Elsewhere than at OK each key stands for itself.
    return std::string(story.name) != "setup" && failures::oldOrNew(told, whole);
}

void tryAllocation(const Story& story, const Told& whole, int failing, Failing how) {
    CAPTURE(std::string(story.name));
    CAPTURE(failing);
    int allocations = 0;
    const Told told = tell(story, failing, how, allocations);
    const bool ended = told.facts.at("ended") == "yes";
    REQUIRE(allocations >= failing);
    CHECK(settingsSound(story, told, whole));
    if (ended)
        CHECK(told.facts.at("tray") == "no icon");
    if (how == Failing::forGood)
        return; // there may have been no memory to tell of it
    if (!ended) // handled
        CHECK(told.facts.at("worksOn") == "yes");
    else if (whole.facts.at("ended") == "no")
        CHECK(failures::errorOf(told) == outOfMemory);
}

/// All the allocations of a story, or a sample of them. The last story needs none.
std::vector<int> chosen(int allocations, int sample, fuzz::Random& random) {
    std::vector<int> numbers(
        static_cast<std::size_t>(failures::all() ? allocations : std::min(sample, allocations)));
    for (std::size_t count = 0; count < numbers.size(); ++count)
        numbers[count] =
            1 +
            static_cast<int>(failures::all() ? count : random.below(static_cast<std::size_t>(allocations)));
    return numbers;
}

void tryAll(Failing how, int sample) {
    MESSAGE("KESTREL_SEED=", failures::seed());
    const OutOfMemory raised;
    fuzz::Random random(failures::seed());
    for (const Story& story : failures::stories) {
        int allocations = 0;
        tell(story, 0, how, allocations); // what is made once is made
        const Told whole = tell(story, 0, how, allocations);
        for (const int failing : chosen(allocations, sample, random))
            tryAllocation(story, whole, failing, how);
    }
}

} // namespace

TEST_SUITE_BEGIN("failures/allocations");

TEST_CASE("each allocation fails once: error 7, handled or told, with the settings old or new") {
    constexpr int sample = 40;
    tryAll(Failing::once, sample);
}

TEST_CASE("where no memory comes back the program ends, told or not, with the settings old or new") {
    constexpr int sample = 10;
    tryAll(Failing::forGood, sample);
}

TEST_CASE("a program whose main form cannot be made ends by error 7") {
    const OutOfMemory raised;
    const auto make = [](int failing) {
        const desktop::Session session;
        failures::watchAllocations(failing);
        desktop::world().event([] { const core::Hauptform form; });
        const int allocations = failures::stopAllocations();
        CHECK(desktop::world().ended == (failing != 0));
        CHECK(desktop::world().messageBoxes.size() == (failing == 0 ? 0 : 1));
        return allocations;
    };
    make(0);
    const int allocations = make(0);
    REQUIRE(allocations > 0);
    for (int failing = 1; failing <= allocations; ++failing)
        make(failing);
}

TEST_SUITE_END();
