// Values that many controls have alike, and that are made once for all of them: fonts, the texts of tool
// tips.
//
// The forms of an editor that has been closed stay for as long as the program runs. Each value of their own
// would be a small piece that keeps a part of the heap from being used for anything else.
#pragma once

#include <memory>
#include <utility>
#include <vector>

namespace forms {

/// The one that equals this value, for as long as somebody has it.
template <typename Value>
std::shared_ptr<const Value> shared(Value value) {
    static std::vector<std::weak_ptr<const Value>> all;
    std::erase_if(all, [](const std::weak_ptr<const Value>& each) { return each.expired(); });
    for (const std::weak_ptr<const Value>& each : all)
        if (std::shared_ptr<const Value> known = each.lock(); *known == value)
            return known;
    auto made = std::make_shared<const Value>(std::move(value));
    all.push_back(made);
    return made;
}

} // namespace forms
