// What has to answer for a path: a server that may be away, a drive that may be empty. The system takes up to
// half a minute to find that out, each time anew, and as long our windows would stand still, and EAGLE's with
// them, whose thread shares its input with ours.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <string_view>

namespace win32 {

/// The host of a path, in lower case: the server's name for one on the network, however it is reached; the
/// drive ("a:") where its medium can be taken out. Empty for a path on a fixed drive and for a drive that is
/// not there. Neither the network nor the drive is asked. A path that names no drive has the current
/// folder's; of a command line its beginning counts, of an address ("file:...") where it leads.
std::string hostOf(std::string_view path);

/// Does the work that a path needs, and tells whether it is done; what has not been done by then counts as
/// missing. On a fixed drive it is done at once. Any other host has one thread at a time and 3 s for all
/// that is asked of it until it answers; once they have passed, nothing is asked of it for a minute. The
/// work tells whether the host has answered, be it with a "no". It may end late, so it must own all that it
/// uses, and it must not throw. Messages that other programs send to our windows are answered meanwhile.
bool askHost(std::string_view path, const std::function<bool()>& work);

/// The same for a work that may have a question of the system for the user: for what the shell opens. The
/// works of one host are done in their order, all by one thread. While one stands, another is not waited for
/// and counts as not done: it comes behind the first, or never if that is known to hang, or has taken 3 s
/// and asks nothing. The time of a question that is up is the user's and not the host's, which may be asked
/// for other things meanwhile.
/// Without a host each work has a thread of its own and 3 s.
bool askHostInTurn(std::string_view path, const std::function<bool()>& work);

/// The same for a work that does nothing but ask the user, the system's question for more rights: nobody
/// waits for it, and its host may be asked for other things meanwhile, though no window of ours is seen.
void askUserInTurn(std::string_view path, const std::function<bool()>& work);

/// Whether the host of a path answers; one that is asked nothing just now counts as one that does not. A
/// fixed drive does.
bool hostAnswers(std::string_view path);

/// Error of a program that needs more rights than ours.
inline constexpr DWORD elevationRequired = 740;

/// Whether an error of the file system, or success, comes from a host that answers. Others may come from
/// the network, after a long time.
bool isAnswer(DWORD error);
/// The same of a file itself, whether it is there or not. To be asked in a work.
bool fileAnswers(const std::string& path);

/// From here on the system asks the user for no medium when a drive has none: the call fails. To be done at
/// the program's start; programs that it starts are to have the system's own mode.
void askForNoMedium();

} // namespace win32
