#include "win32/platform/hosts.h"

#include "runtime/characters.h"
#include "runtime/runtimeError.h"
#include "runtime/text.h"
#include "win32/common/wide.h"
#include "win32/platform/paths.h"
#include "win32/platform/patience.h"
#include "win32/platform/workQueue.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <map>
#include <memory>

namespace win32 {

namespace {

/// Milliseconds for which a host counts as away that has not answered.
constexpr ULONGLONG pause = 60'000;

/// How many letters can stand for folders that another letter leads to.
constexpr int letterChain = 4;

/// An opening that asks the user may be as old as it likes.
constexpr ULONGLONG forever = ~ULONGLONG{0};

/// Used by our thread but for the two that its threads set, and for the queue.
struct Host {
    std::atomic<int> asking = 0;        ///< so many threads are, beside the queue's
    std::atomic<bool> answered = false; ///< since it was last asked
    ULONGLONG waited = 0;               ///< since its last answer
    ULONGLONG awayUntil = 0;            ///< 0: it is not known to be away
    WorkQueue inTurn;                   ///< what is asked in turn
};

/// A host's thread from its making to its end, and where none can be made. An answer is told of last: who
/// hears of it finds the host free.
class Turn {
  public:
    explicit Turn(std::shared_ptr<Host> host) : host_(std::move(host)) { ++host_->asking; }
    ~Turn() {
        --host_->asking;
        if (answered_)
            host_->answered = true;
    }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;

    void answered() { answered_ = true; }

  private:
    std::shared_ptr<Host> host_;
    bool answered_ = false;
};

/// The same of the thread that works a host's queue off. Where it cannot be made the queue is empty again.
class QueueTurn {
  public:
    explicit QueueTurn(std::shared_ptr<Host> host) : host_(std::move(host)) {}
    ~QueueTurn() {
        if (!begun_)
            host_->inTurn.clear();
    }
    QueueTurn(const QueueTurn&) = delete;
    QueueTurn& operator=(const QueueTurn&) = delete;

    void workOff() {
        begun_ = true;
        WorkQueue::Work work = host_->inTurn.next();
        while (work.code) {
            bool answered = false;
            try {
                answered = work.code();
            } catch (
                const runtime::RuntimeError&) { // nothing is opened, nothing told, and the next one comes
            }
            work = host_->inTurn.next();
            if (answered)
                host_->answered = true;
        }
    }

  private:
    std::shared_ptr<Host> host_;
    bool begun_ = false;
};

std::shared_ptr<Host> knownHost(const std::string& name) {
    static std::map<std::string, std::shared_ptr<Host>> hosts;
    std::shared_ptr<Host>& host = hosts[name];
    if (!host)
        host = std::make_shared<Host>();
    return host;
}

/// Whether it is the user that the queue's thread waits for.
bool asksUser(const Host& host) {
    return host.inTurn.asksUser() || showsWindow(host.inTurn.thread());
}

/// Whether a thread is at work and does not wait for the user. He is looked for first: his answer may be the
/// end of the work.
bool hangs(const Host& host) {
    return host.asking > 0 || (!asksUser(host) && host.inTurn.isAtWork());
}

/// A host that has answered, if late, is there, and one whose minute has passed may be; not while what was
/// asked of it hangs.
bool isAway(Host& host, ULONGLONG now) {
    if (host.answered.exchange(false) || (host.awayUntil != 0 && now >= host.awayUntil && !hangs(host))) {
        host.waited = 0;
        host.awayUntil = 0;
    }
    return host.awayUntil != 0;
}

/// Books what was waited for a host since then, and whether it is away.
void book(Host& host, ULONGLONG begin, bool done) {
    const ULONGLONG end = GetTickCount64();
    host.waited += end - begin;
    if (!done || (!host.answered && host.waited >= patience))
        host.awayUntil = end + pause;
}

std::string upToSeparator(std::string_view text) {
    return std::string(text.substr(0, runtime::findText(text, "\\")));
}

/// What the system has a drive letter for, "\Device\HarddiskVolume2" for instance; empty if it has none.
std::string targetOf(char letter) {
    const std::array<char, 3> drive = {letter, ':', '\0'};
    std::array<char, 1024> target{};
    if (QueryDosDeviceA(drive.data(), target.data(), static_cast<DWORD>(target.size())) == 0)
        return {};
    return runtime::lowerCase(target.data());
}

bool isFixed(char letter) {
    const std::array<char, 4> root = {letter, ':', '\\', '\0'};
    const UINT type = GetDriveTypeA(root.data());
    return type == DRIVE_FIXED || type == DRIVE_RAMDISK || type == DRIVE_NO_ROOT_DIR;
}

std::string hostOfLower(const std::string& path, int letters);

/// `letters`: how many letters may still stand for a folder that another letter leads to.
std::string hostOfDrive(char letter, int letters) {
    const std::string target = targetOf(letter);
    if (target.empty())
        return {};
    // A letter for a folder.
    if (target.starts_with("\\??\\"))
        return letters == 0 ? std::string() : hostOfLower("\\\\?\\" + target.substr(4), letters - 1);
    // A letter for a share: \Device\LanmanRedirector\;X:00000000000a1b2c\server\share, with or without the
    // redirector's name as the last part but one.
    const std::size_t mark = target.rfind("\\;");
    const std::size_t server = mark == std::string::npos ? mark : target.find('\\', mark + 1);
    if (server != std::string::npos)
        return upToSeparator(std::string_view(target).substr(server + 1));
    // Of other devices the type is not asked: that could be the network's to tell.
    const bool disk = target.starts_with("\\device\\harddisk");
    return disk && isFixed(letter) ? std::string() : std::string{letter, ':'};
}

/// Of a path in lower case with backslashes.
std::string hostOfLower(const std::string& path, int letters) {
    constexpr std::string_view longShare = "\\\\?\\unc\\";
    if (path.starts_with(longShare))
        return upToSeparator(std::string_view(path).substr(longShare.size()));
    if (path.starts_with("\\\\?\\") || path.starts_with("\\\\.\\"))
        return hostOfLower(path.substr(4), letters);
    if (path.starts_with("\\\\"))
        return upToSeparator(std::string_view(path).substr(2));
    if (path.size() > 1 && path[1] == ':')
        return hostOfDrive(path[0], letters);
    return {};
}

/// Whether a path says by itself where it leads.
bool isAbsolute(const std::string& path) {
    return path.starts_with("\\\\") || (path.size() > 1 && path[1] == ':');
}

constexpr std::string_view fileScheme = "file:";

/// The path that an address of a file leads to, both in lower case with backslashes.
std::string pathOfAddress(const std::string& address) {
    constexpr std::string_view here = "localhost\\";
    const std::size_t begin = std::min(address.find_first_not_of('\\', fileScheme.size()), address.size());
    const std::size_t separators = begin - fileScheme.size();
    std::string path = address.substr(begin);
    if (separators == 2 && path.starts_with(here))
        path.erase(0, here.size());
    if (path.size() > 1 && path[0] >= 'a' && path[0] <= 'z' && path[1] == '|')
        path[1] = ':';
    const bool server = separators == 2 || separators > 3;
    return server && !isAbsolute(path) ? "\\\\" + path : path;
}

std::string currentFolder() {
    std::string folder(GetCurrentDirectoryA(0, nullptr), '\0');
    folder.resize(GetCurrentDirectoryA(static_cast<DWORD>(folder.size()), folder.data()));
    return folder;
}

/// The drive that the program runs from, if it is a fixed one: as long as the program runs it stays one.
const std::string& ownFixedDrive() {
    static const std::string drive = [] {
        constexpr std::size_t letterAndColon = 2;
        std::string own = runtime::lowerCase(toText(ownPath().substr(0, letterAndColon)));
        return own[1] == ':' && hostOfLower(own, letterChain).empty() ? own : std::string();
    }();
    return drive;
}

/// Waits no longer than that.
bool askInTurn(std::string_view path, const WorkQueue::Work& work, ULONGLONG longest) {
    const std::string name = hostOf(path);
    if (name.empty())
        return doPatiently(work.code, longest);
    const std::shared_ptr<Host> host = knownHost(name);
    const ULONGLONG begin = GetTickCount64();
    // Behind one that is not known to hang.
    if (isAway(*host, begin) || host->inTurn.join(work, asksUser(*host) ? forever : patience) || hangs(*host))
        return false;
    const auto turn = std::make_shared<QueueTurn>(host);
    host->inTurn.begin(work);
    const bool done = doPatiently([turn] { turn->workOff(); }, std::min(longest, patience - host->waited));
    if (done || !(work.asksUser || asksUser(*host)))
        book(*host, begin, done);
    return done;
}

} // namespace

std::string hostOf(std::string_view path) {
    const std::wstring whole = widePath(path.starts_with('"') ? path.substr(1) : path);
    // What the code page lacks does not count: only the beginning tells.
    std::string plain = runtime::lowerCase(toText(whole));
    std::ranges::replace(plain, '/', '\\');
    if (plain.starts_with(fileScheme))
        plain = pathOfAddress(plain);
    if (!isAbsolute(plain))
        plain = runtime::lowerCase(currentFolder());
    // Each tick looks for a file beside the program, and the type takes longer than the look.
    if (!ownFixedDrive().empty() && plain.starts_with(ownFixedDrive()))
        return {};
    return hostOfLower(plain, letterChain);
}

bool askHost(std::string_view path, const std::function<bool()>& work) {
    const std::string name = hostOf(path);
    if (name.empty()) {
        work();
        return true;
    }
    const std::shared_ptr<Host> host = knownHost(name);
    const ULONGLONG begin = GetTickCount64();
    if (isAway(*host, begin) || hangs(*host))
        return false;
    const bool done = doPatiently(
        [turn = std::make_shared<Turn>(host), work] {
            if (work())
                turn->answered();
        },
        patience - host->waited);
    book(*host, begin, done);
    return done;
}

bool askHostInTurn(std::string_view path, const std::function<bool()>& work) {
    return askInTurn(path, {work}, patience);
}

void askUserInTurn(std::string_view path, const std::function<bool()>& work) {
    constexpr ULONGLONG notAtAll = 0;
    askInTurn(path, {work, true}, notAtAll);
}

bool hostAnswers(std::string_view path) {
    if (hostOf(path).empty())
        return true;
    const auto answers = std::make_shared<bool>(false);
    const bool done =
        askHost(path, [whole = std::string(path), answers] { return *answers = fileAnswers(whole); });
    return done && *answers;
}

bool isAnswer(DWORD error) {
    switch (error) {
    case ERROR_SUCCESS:
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_ACCESS_DENIED:
    case ERROR_NO_MORE_FILES:
    case ERROR_SHARING_VIOLATION:
    case ERROR_INVALID_NAME: // an address, for instance
    case ERROR_BAD_EXE_FORMAT:
    case elevationRequired:
        return true;
    default:
        return false;
    }
}

bool fileAnswers(const std::string& path) {
    return GetFileAttributesW(widePath(path).c_str()) != INVALID_FILE_ATTRIBUTES || isAnswer(GetLastError());
}

void askForNoMedium() {
    SetErrorMode(GetErrorMode() | SEM_FAILCRITICALERRORS);
}

} // namespace win32
