// One walk a tick in place of a search for each text: it finds the same and reads less.
#include "core/editorSearch.h"

#include "codePages.h"
#include "core/running.h"
#include "core/windoInf.h"
#include "fuzz/random.h"
#include "runtime/text.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

using core::EditorSearch;
using desktop::Session;
using desktop::world;
using platform::HWND;
using store::EditorKind;

namespace {

/// The texts of a kind; the first one decides how far must be read.
std::vector<const char*> textsOf(EditorKind kind) {
    switch (kind) {
    case EditorKind::board:
        return {"Board -"};
    case EditorKind::schematic:
        return {"Schematic -", "Schaltplan -"};
    case EditorKind::library:
        break;
    }
    return {"Library -", "Bibliothek -"};
}

/// By a search for each text, and a look at the title of what it has found.
HWND separately(EditorKind kind) {
    for (const char* text : textsOf(kind))
        if (const HWND found = core::findWindowByTitle(text); found != HWND::none)
            return runtime::holdsIgnoringCase(core::getWindowCaption(found), "eagle:") ? HWND::none : found;
    return HWND::none;
}

struct Answer {
    HWND front;
    std::string searchTitle;
    HWND foundWindow;
    bool operator==(const Answer&) const = default;
};

template <typename Search>
Answer answer(Search search) {
    // What a search before may have left.
    core::searchTitle = "control panel";
    core::foundWindow = HWND{0x77};
    const HWND front = search();
    return {front, core::searchTitle, core::foundWindow};
}

/// Windows with few and with many editors, German ones, several kinds in one title, titles that only just are
/// none.
struct RandomDesktop : Session {
    /// With `longTitles` some go on beyond the 255 characters that a search looks at.
    explicit RandomDesktop(std::uint32_t seed, bool longTitles = false)
        : random(seed), longest(longTitles ? 400 : 254) {
        const std::size_t rarity = 1 + random.below(6);
        for (std::size_t count = random.below(30); count > 0; --count)
            open(random.below(rarity) == 0);
    }

    void open(bool editor) {
        static const std::string pieces[] = {"Board -",      "Schematic -", "Schaltplan -", "Library -",
                                             "Bibliothek -", "BOARD -",     "sChEmAtIc -",  "Board-",
                                             "Board  -",     "Schematic",   " -",           "library -",
                                             "Eagle: ",      "chaltplan -", "SCHALTPLAN -", "bIBLIOTHEK -"};
        std::string title;
        if (random.below(8) == 0)
            title = std::string(235 + random.below(20), 'x'); // only 255 characters count
        for (std::size_t count = editor ? 1 + random.below(3) : 0; count > 0; --count)
            title += random.text(" -bs", 3) + random.oneOf(pieces) + random.text(" -.", 3);
        if (!editor && random.below(3) > 0)
            title += western("Posteingang \xC4\xF6\xFC - ") + random.bytes(9);
        if (random.below(8) == 0)
            title = std::string(200 + random.below(56), ' ') + title +
                    "Eagle: "; // a caption begins behind blanks
        title.resize(std::min(title.size(), longest));
        std::replace(title.begin(), title.end(), '\0', '0');
        const HWND window = world().openWindow(title);
        world().window(window).visible = random.below(4) > 0;
        if (random.below(10) == 0)
            world().makeGhost(window);
    }

    void raiseAny() {
        if (!world().order.empty())
            world().raise(world().order[random.below(world().order.size())]);
    }

    fuzz::Random random;
    std::size_t longest; ///< title, in bytes
};

/// Those of other programs whose titles a walk can read, in their order.
std::vector<HWND> readable() {
    std::vector<HWND> windows;
    for (const HWND window : world().order)
        if (world().window(window).className != desktop::ghostClass)
            windows.push_back(window);
    return windows;
}

/// How many of them must be read for these kinds.
std::size_t needed(std::initializer_list<EditorKind> kinds) {
    const std::vector<HWND> windows = readable();
    std::size_t most = 0;
    for (const EditorKind kind : kinds) {
        const HWND found = core::findWindowByTitle(textsOf(kind).front());
        const auto place = std::find(windows.begin(), windows.end(), found);
        most = std::max(most, static_cast<std::size_t>(place - windows.begin()) +
                                  (place == windows.end() ? 0U : 1U));
    }
    return most;
}

struct Reads {
    Reads() {
        world().onTitleRead = [this](HWND window) { windows.push_back(window); };
    }
    ~Reads() { world().onTitleRead = nullptr; }
    Reads(const Reads&) = delete;
    Reads& operator=(const Reads&) = delete;
    std::vector<HWND> windows;
};

constexpr std::uint32_t desktops = 1000;

} // namespace

TEST_SUITE_BEGIN("core/editorSearch");

TEST_CASE("one walk finds on random desktops what a search for each text finds") {
    for (std::uint32_t seed = 0; seed < desktops; ++seed) {
        CAPTURE(seed);
        RandomDesktop desk(seed, true);
        EditorSearch search;
        for (const EditorKind kind : store::editorKinds) {
            CAPTURE(static_cast<int>(kind));
            const Answer one = answer([&] { return search.front(kind); });
            REQUIRE(one == answer([&] { return separately(kind); }));
            if (desk.random.below(3) > 0)
                continue;
            // As a toolbar does that is made.
            desk.raiseAny();
            search.forget();
        }
    }
}

TEST_CASE("the titles of random desktops are read once, in window order and only as far as they are needed") {
    for (std::uint32_t seed = 0; seed < desktops; ++seed) {
        CAPTURE(seed);
        const RandomDesktop desk(seed);
        std::vector<HWND> expected = readable();
        expected.resize(needed({EditorKind::board, EditorKind::schematic, EditorKind::library}));
        EditorSearch search;
        const Reads reads;
        for (const EditorKind kind : store::editorKinds)
            search.front(kind);
        REQUIRE(reads.windows == expected);
    }
}

TEST_CASE("a walk after a kind has been dealt with does not look for that kind any more") {
    for (std::uint32_t seed = 0; seed < desktops; ++seed) {
        CAPTURE(seed);
        const RandomDesktop desk(seed);
        std::vector<HWND> expected = readable();
        expected.resize(needed({EditorKind::schematic, EditorKind::library}));
        EditorSearch search;
        search.front(EditorKind::board);
        search.forget();
        const Reads reads;
        search.front(EditorKind::schematic);
        search.front(EditorKind::library);
        REQUIRE(reads.windows == expected);
    }
}

TEST_CASE("a kind that was passed over is looked for by a walk of its own") {
    Session session;
    const HWND board = world().openWindow("Board - a.brd - EAGLE");
    const HWND library = world().openWindow("Library - a.lbr - EAGLE");
    EditorSearch search;
    CHECK(search.front(EditorKind::library) == library);
    CHECK(search.front(EditorKind::board) == board);
}

TEST_CASE("a kind's second text counts only if the first is in no title at all") {
    Session session;
    const HWND english = world().openWindow("Schematic - a.sch - EAGLE");
    const HWND german = world().openWindow("Schaltplan - b.sch - EAGLE");
    CHECK(EditorSearch().front(EditorKind::schematic) == english);
    CHECK(core::searchTitle == "schematic -");
    world().closeWindow(english);
    CHECK(EditorSearch().front(EditorKind::schematic) == german);
    CHECK(core::searchTitle == "schaltplan -");
}

TEST_CASE("a tick reads each title once, also those of the editors that it deals with") {
    Running program;
    const HWND behind = program.desk().openWindow("Inbox");
    const std::vector<HWND> editors = {program.desk().openWindow("Board - x.brd - EAGLE"),
                                       program.desk().openWindow("Schematic - x.sch - EAGLE"),
                                       program.desk().openWindow("Library - x.lbr - EAGLE")};
    const HWND front = program.desk().openWindow("Control Panel - EAGLE");
    program.ticks(1);
    program.desk().raise(front); // the toolbars have raised their hosts
    Reads reads;
    const auto count = [&](HWND window) {
        return std::count(reads.windows.begin(), reads.windows.end(), window);
    };
    program.ticks(1);
    CHECK(count(front) == 1);
    CHECK(count(behind) == 0);
    for (const HWND editor : editors)
        CHECK(count(editor) == 1);
    for (const HWND editor : editors)
        program.desk().closeWindow(editor);
    reads.windows.clear();
    program.ticks(1);
    CHECK(count(front) == 1);
    CHECK(count(behind) == 1);
}

TEST_CASE("windows are looked at anew once something was made, also something that its host refused") {
    bool refuses = false;
    SUBCASE("made") {}
    SUBCASE("refused") {
        refuses = true;
    }
    Running program;
    const HWND raised = program.desk().openWindow("Schematic - raised.sch - EAGLE");
    program.desk().openWindow("Schematic - front.sch - EAGLE");
    const HWND board = program.desk().openWindow("Board - x.brd - EAGLE");
    program.desk().window(board).elevated = refuses;
    // What goes into the board's window raises another one, as the making of a toolbar can.
    program.desk().onSetParent = [&](HWND host) {
        if (host == board)
            program.desk().raise(raised);
    };
    program.ticks(1);
    REQUIRE(program.hosted(EditorKind::schematic) == 1);
    CHECK(program.toolbar(EditorKind::schematic, 1).eagHND == raised);
}

TEST_CASE("nothing that a tick has read is there on the next one") {
    Running program;
    const HWND first = program.desk().openWindow("Board - a.brd - EAGLE");
    program.ticks(1);
    program.desk().setTitle(first, "Something else");
    const HWND second = program.desk().openWindow("Board - b.brd - EAGLE");
    program.ticks(1);
    REQUIRE(program.hosted(EditorKind::board) == 2);
    CHECK(program.toolbar(EditorKind::board, 2).eagHND == second);
    program.desk().setTitle(second, "Something else");
    program.ticks(1);
    CHECK(core::foundWindow == HWND::none);
    CHECK(core::searchTitle == "bibliothek -");
}

TEST_SUITE_END();
