// A program that reports a failure and ends with what the user has chosen.
//
//     error-dialog.exe BITS short|long [OUTLET]
//
// BITS says which ways to go on are offered. A long failure has more to say than there is room for. With an
// OUTLET, 0 to 3, the protocol goes there once the dialog has closed.
#include "errors/ErrPtnr.h"
#include "runtime/guard.h"

#include <windows.h>

#include <commctrl.h>

#include <sstream>
#include <string>

namespace {

struct Order {
    int bits = 0;
    std::string length;
    int outlet = -1;
};

Order orderOf(const std::string& commandLine) {
    std::istringstream words(commandLine);
    Order order;
    words >> order.bits >> order.length;
    if (!(words >> order.outlet))
        order.outlet = -1;
    return order;
}

void fillTrace(errors::ErrPtnr& form, int routines) {
    for (int number = 1; number <= routines; ++number) {
        std::string routine = "routine " + std::to_string(number);
        form.CallStack(routine);
        form.CallStackParam("index", std::int32_t{number});
        form.CallStackParam("picture", errors::Nothing{});
    }
}

int report(const Order& order) {
    errors::ErrPtnr& form = errors::errPtnr();
    const bool isLong = order.length == "long";
    constexpr int few = 3;
    constexpr int many = 5000;
    fillTrace(form, isLong ? many : few);
    const std::string repeated = "and so on, ";
    std::string description = "The list has no such row";
    while (isLong && description.size() < 10'000)
        description += ", " + repeated;
    try {
        throw runtime::RuntimeError(runtime::ErrorNumber::subscriptOutOfRange, description);
    } catch (const runtime::RuntimeError&) {
        const int chosen =
            form.OnError(isLong ? "A module & a name that is longer than its field was made for" : "modLists",
                         "loadLists", static_cast<std::uint8_t>(order.bits));
        if (order.outlet >= 0)
            form.cmdProtocol_Click(static_cast<std::int16_t>(order.outlet));
        return chosen;
    }
}

} // namespace

int WINAPI WinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, LPSTR commandLine, int /*show*/) {
    INITCOMMONCONTROLSEX classes{sizeof classes, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&classes);
    int result = -1;
    runtime::guarded([&] {
        forms::Form behind;
        behind.setCaption("Behind");
        behind.setClientSize(4500, 3000);
        behind.show();
        result = report(orderOf(commandLine));
    });
    return result;
}
