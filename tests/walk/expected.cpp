#include "walk/expected.h"

#include "desktop/program.h"

#include <algorithm>
#include <cctype>
#include <sstream>

namespace programWalk {

namespace {

constexpr std::size_t library = 2;

/// What a title of each kind holds; the second counts where no window has the first.
constexpr std::array<std::array<const char*, 2>, kinds> marks = {
    {{"board -", nullptr}, {"schematic -", "schaltplan -"}, {"library -", "bibliothek -"}}};
constexpr std::array<const char*, kinds> fileKeys = {"toolbar.lastboard", "toolbar.lastsch",
                                                     "toolbar.lastlbr"};

std::string lower(std::string text) {
    std::ranges::transform(text, text.begin(), [](unsigned char character) {
        return static_cast<char>(std::tolower(character));
    });
    return text;
}

int widthOf(HWND host) {
    const desktop::Window* window = desktop::world().find(host);
    return window == nullptr ? 0 : window->rect.right - window->rect.left;
}

/// Whether a call of the platform is about a window: its first number is; of SetParent its second, too.
bool names(const std::string& call, HWND window) {
    std::istringstream words(call);
    std::string name;
    std::uintptr_t first = 0;
    std::uintptr_t second = 0;
    words >> name >> first >> second;
    return first == static_cast<std::uintptr_t>(window) ||
           (name == "SetParent" && second == static_cast<std::uintptr_t>(window));
}

} // namespace

Settings parsed(const std::string& file) {
    Settings result;
    std::istringstream lines(file);
    std::string section;
    for (std::string line; std::getline(lines, line);) {
        if (line.ends_with('\r'))
            line.pop_back();
        if (line.starts_with('['))
            section = lower(line.substr(1, line.find(']') - 1));
        else if (const std::size_t mark = line.find('='); mark != std::string::npos)
            result[section + "." + lower(line.substr(0, mark))] = line.substr(mark + 1);
        else if (!line.empty())
            result["no line"] = line;
    }
    return result;
}

Host* Expected::host(HWND handle) {
    const auto found = std::ranges::find(hosts, handle, &Host::handle);
    return found == hosts.end() ? nullptr : &*found;
}

void Expected::tickBegins() {
    tickEnds();
    desktop::World& desk = desktop::world();
    tick_ = Tick{desk.now, calculatorsOn, desk.lastRefusal, {}, desk.calls.size(), {}};
    for (const Host& host : hosts)
        if (desk.hangs(host.handle))
            tick_->hung.insert(host.handle);
}

void Expected::looks() {
    if (tick_)
        tick_->looks.push_back(desktop::world().order);
}

void Expected::tickEnds() {
    if (!tick_)
        return;
    std::size_t look = 0;
    for (std::size_t kind = 0; kind < kinds; ++kind) {
        if (look >= tick_->looks.size()) {
            wrong = "a tick has not looked at the windows";
            break;
        }
        const Host* found = front(kind, tick_->looks[look]);
        if (found != nullptr && track(kind, *found)) {
            ++look; // the order may be another now
            tick_->hung.erase(found->handle);
        }
    }
    // A tick that makes nothing for a window has nothing to ask of it.
    const auto& calls = desktop::world().calls;
    for (const HWND hung : tick_->hung)
        for (std::size_t call = tick_->firstCall; call < calls.size(); ++call)
            if (names(calls[call], hung) && !calls[call].starts_with("BringWindowToTop"))
                wrong = "a tick has touched a window that hangs: " + calls[call];
    tick_.reset();
}

/// In the order of the windows the first with the kind's text in what the program reads of its title. One
/// that the exclusion rules out is not followed by another.
const Host* Expected::front(std::size_t kind, const std::vector<HWND>& order) const {
    constexpr std::size_t longest = 255;
    for (const char* mark : marks[kind]) {
        if (mark == nullptr)
            continue;
        for (const HWND handle : order) {
            const auto seen = std::ranges::find(hosts, handle, &Host::handle);
            if (seen == hosts.end())
                continue;
            const std::string title = lower(seen->title.substr(0, longest));
            if (title.find(mark) != std::string::npos)
                return title.find("eagle:") == std::string::npos ? &*seen : nullptr;
        }
    }
    return nullptr;
}

/// The number of the entry that stands in the host, or the one that a new one is thought to have.
bool Expected::scanFinds(std::size_t kind, HWND host, std::size_t& index) const {
    const bool elsewhere = kind == library && !mended;
    const std::size_t bound = 1 + bars[elsewhere ? 1 : kind].size();
    for (index = 1; index < bound; ++index)
        if (index - 1 < bars[kind].size() && bars[kind][index - 1].host == host)
            return true;
    index = bound;
    return false;
}

/// Whether it has made a toolbar.
bool Expected::track(std::size_t kind, const Host& host) {
    std::size_t index = 0;
    if (scanFinds(kind, host.handle, index)) {
        place(bars[kind][index - 1].calculator, host.handle);
        return false;
    }
    if (kind == library && libraryMayWait())
        return false;
    add(kind, host, index);
    return true;
}

/// After a refusal no library gets a toolbar for a while. Where a window that hangs has cost time meanwhile,
/// how long that is is not known exactly: then what the program has done decides.
bool Expected::libraryMayWait() const {
    constexpr std::int64_t pause = 800;
    constexpr std::int64_t uncertain = 1000;
    if (!tick_->refusal)
        return false;
    const std::int64_t since = tick_->at - *tick_->refusal;
    if (since >= pause)
        return false;
    if (since < pause - uncertain || tick_->hung.empty())
        return true;
    const auto& made = core::hauptform()->toolbarsLBR;
    return made.size() - 1 == bars[library].size();
}

void Expected::add(std::size_t kind, const Host& host, std::size_t scanned) {
    constexpr int barWidth = 120 + 2 * desktop::frameSide;
    constexpr int gap = 25;
    rememberFile(kind, host.title);
    Bar bar;
    bar.host = host.handle;
    bar.refused = host.refuses;
    bar.left = widthOf(host.handle) - barWidth - gap;
    if (host.refuses)
        tick_->refusal = tick_->at;
    std::size_t placed = scanned;
    if (tick_->calculators) {
        placed = bar.calculator = calculators.size();
        calculators.push_back({host.handle, host.refuses, false, 0});
    }
    bars[kind].push_back(bar);
    place(placed, host.handle);
}

void Expected::place(std::size_t calculator, HWND host) {
    constexpr int narrowest = 700;
    constexpr int calculatorWidth = 200;
    if (calculator > 0 && calculator < calculators.size())
        calculators[calculator].left = std::max(narrowest, widthOf(host)) - calculatorWidth;
}

void Expected::rememberFile(std::size_t kind, const std::string& title) {
    constexpr std::string_view separator = " - ";
    const std::size_t first = title.find(separator);
    if (first == std::string::npos)
        return;
    const std::size_t begin = first + separator.size();
    const std::size_t second = title.find(separator, begin);
    if (second == std::string::npos)
        return;
    std::string name = title.substr(begin, second - begin);
    if (name.empty() || name == lastFile_[kind])
        return;
    if (const std::size_t bracket = name.rfind('('); kind == library && bracket != std::string::npos)
        name.resize(bracket - 1);
    settings[fileKeys[kind]] = lastFile_[kind] = name;
}

void Expected::sweep() {
    desktop::World& desk = desktop::world();
    std::erase_if(hosts, [&](const Host& host) { return desk.find(host.handle) == nullptr; });
    for (auto& list : bars)
        for (Bar& bar : list)
            bar.dead = bar.dead || (!bar.refused && desk.find(bar.host) == nullptr);
    for (Calculator& each : calculators)
        each.dead = each.dead || (!each.refused && desk.find(each.host) == nullptr);
}

} // namespace programWalk
