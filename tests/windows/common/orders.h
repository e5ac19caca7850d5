// Orders of the driver: lines that it adds to a file, which a thread watches. A line holds fields separated
// by tabs: the order's number, a verb, and what the verb needs. Each order is answered in the journal by
// "done" or "failed", the number, and a text. The file is looked at every 20 ms; the order "pace" with
// another number of milliseconds changes that, for what is measured beside it.
#pragma once
#include <functional>
#include <string>
#include <vector>

namespace orders {

struct Order {
    std::wstring number;
    std::wstring verb;
    std::vector<std::wstring> words;

    // The word at an index, empty if there are not as many.
    std::wstring word(size_t index) const;
    // The same read as a number, decimal or with 0x; 0 if it is none.
    long long numberAt(size_t index) const;
};

// Starts the thread. The handler is called on that thread, for orders that are added from now on.
void listen(const std::wstring& path, std::function<void(const Order&)> handler);

void done(const Order& order, const std::wstring& text = L"");
void failed(const Order& order, const std::wstring& text);

} // namespace orders
