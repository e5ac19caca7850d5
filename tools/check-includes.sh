#!/usr/bin/env bash
# Lists the includes under src that the layout does not allow: those that point up, headers of a system outside
# src/win32, and those of the library that are not the same over the system's own threads and over POSIX ones; with
# the words that need these. Ends with 1 if there is one besides the known exceptions. HACKING.md tells what each
# folder is for.
set -uo pipefail
cd "$(dirname "$0")/.." || exit 2

find src -name '*.h' -o -name '*.cpp' | sort | xargs awk '
BEGIN {
    count = split("platform runtime forms store calculator setup toolbars core", order)
    for (place = 1; place <= count; ++place)
        floor[order[place]] = place
    # These two stand on the forms, beside the rest. No other folder includes them.
    aside["errors"] = aside["win32"] = floor["forms"] + 0.5
    count = split("common forms platform", order) # the floors inside win32
    for (place = 1; place <= count; ++place)
        inner[order[place]] = place
    free["src/win32/main.cpp"] # puts all together
    # The program is compiled with the headers of the one and linked with the other (src/win32/CMakeLists.txt). What has a
    # lock in it, streams and files among it, does not fit then, and what waits for a thread is not there.
    count = split("barrier condition_variable fstream future iomanip iostream istream latch mutex ostream print random " \
                  "semaphore shared_mutex sstream stop_token syncstream thread", threaded)
    for (place = 1; place <= count; ++place)
        ofThreads[threaded[place]]
    known["src/toolbars/frmToolbar.cpp core/windoInf.h"] # raises its host by a routine that has its place there
}
/(^|[^A-Za-z0-9_])(call_once|notify_all|notify_one|random_device|thread_local)([^A-Za-z0-9_]|$)/ && !/^[ \t]*\/\// {
    print FILENAME ":" FNR ": needs the threads of POSIX"
    ++bad
}
/^[ \t]*#[ \t]*include/ {
    split(FILENAME, path, "/")
    from = path[2]
    split($0, name, "[\"<>]")
    split(name[2], target, "/")
    to = target[1]
    if (/</ && name[2] in ofThreads) {
        print FILENAME ":" FNR ": " name[2] " needs the threads of POSIX"
        ++bad
        next
    }
    if (FILENAME in free || (/</ && (from == "win32" || name[2] !~ /\.h$/)))
        next
    if (from == to && (from != "win32" || inner[target[2]] <= inner[path[3]]))
        next
    height = from in aside ? aside[from] : floor[from]
    if (to in floor && floor[to] < height)
        next
    exception = (FILENAME " " name[2]) in known
    print FILENAME ":" FNR ": " name[2] (exception ? " (known)" : "")
    bad += !exception
}
END { exit bad > 0 }' || exit 1
