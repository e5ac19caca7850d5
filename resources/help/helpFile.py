"""The compiled help file: a project for chmcmd, its run, and the time stamps taken out of what it made, so that the same
sources give the same bytes."""

import html
import re
import shutil
import struct
import subprocess
import xml.etree.ElementTree as tree
import zlib
from pathlib import Path

import book

CODE_PAGE = "cp1252"
CHARSET = "windows-1252"  # the same under the name that HTML has for it
GERMAN = "0x407"  # of both languages' code page
COMPILER = "chmcmd"
PROJECT_FILE = "kestrel.hhp"
CONTENTS_FILE = "kestrel.hhc"
INDEX_FILE = "kestrel.hhk"
CONTEXT_MAP = "#IVB"
STRINGS = "#STRINGS"
WINDOW = "main"
FILE_NAME = book.TITLE.replace(" ", "_") + ".chm"
HEADER_STAMP = 16  # where the file's header has its time stamp

# Bits of the viewer's window. The title of the page never goes into the window's title: a title such as "Board - ..." would be
# taken for an editor window.
PANES = 0x20 | 0x100 | 0x400 | 0x40000  # a contents pane that follows the page, a search tab, the user's place is kept
BUTTONS = 0x60304E  # hide, back, forward, home, options, print, next, previous
PANE_WIDTH = 230  # pixels
PLACE = (60, 40, 1000, 740)  # left, top, right, bottom in screen pixels


def _page_text(page, before, after):
    """The page as the viewer of Windows reads it."""
    body = "".join(tree.tostring(element, encoding="unicode", method="html") for element in page.body)
    body = re.sub(r' data-text="\d+"', "", body)
    words = book.WORDS[page.language]
    ways = [f'<a href="../{book.other(page.language)}/{page.topic.name}.html">{words["other"]}</a>']
    if before:
        ways.append(f'{words["previous"]}: <a href="{before.topic.name}.html">{html.escape(before.title)}</a>')
    if after:
        ways.append(f'{words["next"]}: <a href="{after.topic.name}.html">{html.escape(after.title)}</a>')
    return (
        '<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.01//EN">\n'
        f'<html lang="{page.language}">\n<head>\n'
        f'<meta http-equiv="Content-Type" content="text/html; charset={CHARSET}">\n'
        f"<title>{html.escape(page.title)}</title>\n"
        '<link rel="stylesheet" type="text/css" href="../help.css">\n</head>\n<body>\n'
        f"{body.strip()}\n"
        f'<p class="ways">{" &nbsp;|&nbsp; ".join(ways)}</p>\n</body>\n</html>\n')


def _entry(name, file):
    return (f'<LI><OBJECT type="text/sitemap"><param name="Name" value="{html.escape(name)}">'
            f'<param name="Local" value="{file}"></OBJECT>\n')


def _sitemap(inside):
    return ('<!DOCTYPE HTML PUBLIC "-//IETF//DTD HTML//EN">\n<HTML>\n<HEAD>\n'
            f'<meta http-equiv="Content-Type" content="text/html; charset={CHARSET}">\n'
            f"</HEAD>\n<BODY>\n<UL>\n{inside}</UL>\n</BODY>\n</HTML>\n")


def _contents(of_language):
    """A book for each language; chapters with pages below them are books, too."""
    text = ""
    for language, pages in of_language.items():
        text += _entry(book.WORDS[language]["name"], pages[0].file) + "<UL>\n"
        level = 0
        for page in pages:
            text += "<UL>\n" * (page.topic.level - level) + "</UL>\n" * (level - page.topic.level)
            level = page.topic.level
            text += _entry(page.title, page.file)
        text += "</UL>\n" * (level + 1)
    return _sitemap(text)


def _index(of_language):
    found = sorted(((word, page.file) for pages in of_language.values() for page in pages for word in page.keywords),
                   key=lambda entry: (entry[0].casefold(), entry[1]))
    return _sitemap("".join(_entry(word, file) for word, file in found))


def _start(language):
    return f"{language}/{book.START_TOPIC}.html"


def _project(files):
    first = _start(book.LANGUAGES[0])
    place = ",".join(map(str, PLACE))

    def window(name, page):
        return (f'{name}="{book.TITLE}","{CONTENTS_FILE}","{INDEX_FILE}","{page}","{page}",,,,,0x{PANES:x},'
                f"{PANE_WIDTH},0x{BUTTONS:x},[{place}],,,,,,,0")

    lines = ["[OPTIONS]", "Compatibility=1.1 or later", f"Compiled file={FILE_NAME}", f"Contents file={CONTENTS_FILE}",
             f"Index file={INDEX_FILE}", f"Default topic={first}", f"Default Window={WINDOW}", f"Title={book.TITLE}",
             f"Language={GERMAN}", "Binary TOC=No", "Binary Index=No", "Full-text search=Yes", "", "[WINDOWS]",
             window(WINDOW, first)]
    # Only the first window is ever opened; these bring the names of the start topics into the table of strings.
    lines += [window(f"start_{language}", _start(language)) for language in book.LANGUAGES]
    return "\n".join([*lines, "", "[FILES]", *files]) + "\n"


def _write_pages(folder):
    """Leaves in an empty folder all that goes into the help file, and gives the names."""
    of_language = {language: book.pages(language) for language in book.LANGUAGES}
    for language, pages in of_language.items():
        (folder / language).mkdir(parents=True)
        for number, page in enumerate(pages):
            before = pages[number - 1] if number else None
            after = pages[number + 1] if number + 1 < len(pages) else None
            (folder / page.file).write_bytes(_page_text(page, before, after).encode(CODE_PAGE))
    shutil.copytree(book.PICTURES, folder / "pictures")
    shutil.copy(book.STYLE, folder)
    files = [page.file for pages in of_language.values() for page in pages]
    files += ["help.css", *sorted(str(file.relative_to(folder)) for file in (folder / "pictures").rglob("*.png"))]
    (folder / CONTENTS_FILE).write_bytes(_contents(of_language).encode(CODE_PAGE))
    (folder / INDEX_FILE).write_bytes(_index(of_language).encode(CODE_PAGE))
    return files


def _run_compiler(folder):
    """Gives the help file's path; raises RuntimeError with what the compiler said when it complains."""
    made = folder / FILE_NAME
    made.unlink(missing_ok=True)
    done = subprocess.run([COMPILER, "--no-html-scan", PROJECT_FILE], cwd=folder, capture_output=True, text=True,
                          check=False)
    said = done.stdout + done.stderr
    if done.returncode != 0 or not made.exists() or "Error" in said:
        raise RuntimeError(f"{COMPILER} failed:\n{said}")
    return made


def _extract(file, name, target):
    subprocess.run(["chmls", "extract", file, name, target], check=True, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL)
    return target.read_bytes()


def _context_map(strings):
    """The table that leads from a context number to a topic, by the place of its name in the table of strings."""
    entries = b""
    for language, number in book.CONTEXTS.items():
        place = strings.index(b"\0" + _start(language).encode("ascii") + b"\0") + 1
        entries += struct.pack("<2L", number, place)
    return struct.pack("<L", len(entries)) + entries


def _without_time(data):
    """The compiler's two time stamps become a checksum of the rest: the same sources give the same bytes, and a
    viewer that remembers a file by its stamp sees that another one has come."""
    found = [match.start(1) for match in re.finditer(rb"\x03\0\0\0\x0a\0\x04\0(....)\x09\0", data, re.DOTALL)]
    if data[:4] != b"ITSF" or len(found) != 1:
        raise RuntimeError("the help file has not the expected form")
    stamps = (HEADER_STAMP, found[0])
    clean = bytearray(data)
    for place in stamps:
        clean[place:place + 4] = bytes(4)
    checksum = struct.pack("<L", zlib.crc32(clean))
    for place in stamps:
        clean[place:place + 4] = checksum
    return bytes(clean)


def make(folder, target):
    """Compiles the help from a working folder, which is emptied.

    chmcmd's own context map names the topics by their full paths on this machine, where no viewer finds them. So the
    project has none; the map is made here, from the strings of a first run, and goes in as one more file.
    """
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    files = _write_pages(folder)
    project = folder / PROJECT_FILE
    project.write_bytes(_project([*files, CONTEXT_MAP]).encode(CODE_PAGE))
    (folder / CONTEXT_MAP).write_bytes(bytes(4 + 8 * len(book.CONTEXTS)))
    strings = _extract(_run_compiler(folder), STRINGS, folder / "strings")
    (folder / CONTEXT_MAP).write_bytes(_context_map(strings))
    made = _run_compiler(folder)
    if _extract(made, STRINGS, folder / "strings") != strings:
        raise RuntimeError("the strings have moved from the first run to the second")
    Path(target).write_bytes(_without_time(made.read_bytes()))
