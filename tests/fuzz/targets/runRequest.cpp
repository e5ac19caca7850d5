// The line of a run request, and the tokens that stand for folders.
#include "fuzz/targets/targets.h"

#include "core/runRequest.h"
#include "runtime/text.h"
#include "store/pathTokens.h"

namespace fuzz {

void runRequest(std::string_view input) {
    const core::RunRequest request = core::splitRunRequest(input);
    constexpr std::size_t lastPosition = 32767; // from 1
    const auto quoteFrom = [&](std::size_t from) {
        const std::size_t found = input.find('"', from);
        return found < lastPosition - 1 ? found : std::string_view::npos;
    };
    const std::size_t first = quoteFrom(0);
    if (first == std::string_view::npos) {
        expect(request.program == input && request.parameters.empty(), "without a quote all is program",
               input);
    } else {
        expect(request.program == runtime::trim(input.substr(0, first)),
               "the program stands before the first quote", input);
        const std::size_t second = quoteFrom(first + 1);
        const std::string_view between = second == std::string_view::npos
                                             ? std::string_view()
                                             : input.substr(first + 1, second - first - 1);
        expect(request.parameters == between, "the parameters stand between the quotes", input);
    }
    const std::string expanded = store::expandTokens(std::string(input));
    if (input.find('{') == std::string_view::npos)
        expect(expanded == input, "a text without a token stays", input);
}

} // namespace fuzz
