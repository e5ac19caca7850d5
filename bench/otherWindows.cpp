#include "otherWindows.h"

#include <windows.h>

#include <cstdio>
#include <string>

namespace bench {

int serve() {
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        DispatchMessageA(&message);
    return 0;
}

int openWindows(int count) {
    for (int window = 0; window < count; ++window)
        CreateWindowExA(0, "STATIC",
                        ("A window of another program, number " + std::to_string(window)).c_str(),
                        WS_OVERLAPPEDWINDOW, 10, 10, 200, 100, nullptr, nullptr, nullptr, nullptr);
    std::puts("ready");
    std::fflush(stdout);
    return serve();
}

} // namespace bench
