// What clang's fuzzer has found worth keeping is played again: all of corpus, by the target that it belongs
// to.
#include "desktop/desktop.h"
#include "fuzz/targets/targets.h"

#include <doctest/doctest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

TEST_SUITE_BEGIN("fuzz/corpus");

TEST_CASE("each target plays what is kept for it") {
    for (const fuzz::Target& target : fuzz::targets) {
        CAPTURE(target.name);
        const desktop::Session session;
        std::size_t played = 0;
        for (const auto& entry :
             std::filesystem::directory_iterator(std::string(FUZZ_CORPUS "/") + target.name)) {
            std::ifstream file(entry.path(), std::ios::binary);
            const std::string input{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
            target.play(input);
            ++played;
        }
        CHECK(played > 0);
    }
}

TEST_SUITE_END();
