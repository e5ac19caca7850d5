#!/usr/bin/env python3
"""Checks the help: its source against the program, each page against that in the other language, what is compiled from it
by unpacking it again, and the pages of docs/help. Of all documents it checks links, pictures and the texts for those who
cannot see them.

    check-help.py [HELPFILE]...    help files that must hold the same bytes as one made now

Prints what is wrong and at the end "N passed, M failed".
"""

import re
import subprocess
import sys
import tempfile
from pathlib import Path

import book
import helpFile
import toMarkdown
from unpacked import Unpacked

SOURCES = book.PROJECT / "src"
# Titles that hold one of these are taken for windows of EAGLE.
EDITOR_TITLES = ("board -", "schematic -", "schaltplan -", "library -", "bibliothek -", "control panel")
NOT_QUOTED = {1051}  # texts of the program that its user sees under no heading: the filter of a file dialog
# Ways out that a user needs and nothing else here asks for, by topic: an EAGLE with more rights, and a folder with two faces.
SYSTEM_FOLDERS = ("C:\\Windows\\System32", "SysWOW64", "C:\\Windows\\Sysnative")
WAYS_OUT = {"de": {"questions": ("Programm als Administrator ausführen", "Als Administrator ausführen"), "programs": SYSTEM_FOLDERS},
            "en": {"questions": ("Run this program as an administrator", "Run as administrator"), "programs": SYSTEM_FOLDERS}}
VERSION_PICTURES = ("splash",)  # the version of the program is to be seen on them
COMPILER_FILES = {"#ITBITS", "#IVB", "#STRINGS", "#SYSTEM", "#TOPICS", "#URLSTR", "#URLTBL", "#WINDOWS", "$FIftiMain",
                  "$OBJINST", "_#_README_#_"}

passed = failed = 0


def expect(condition, words):
    global passed, failed  # pylint: disable=global-statement
    if condition:
        passed += 1
    else:
        failed += 1
        print(f"   FAIL  {words}")
    return bool(condition)


def equal(seen, expected, words):
    return expect(seen == expected, f"{words}: {seen!r} instead of {expected!r}")


def same_names(seen, expected, words):
    seen, expected = set(seen), set(expected)
    return expect(seen == expected, f"{words}: missing {sorted(expected - seen)}, too many {sorted(seen - expected)}")


# The program's own tables.


def c_text(literals):
    """The text of C++ string literals in a row, in the code page of the program."""
    text = "".join(re.findall(r'"((?:[^"\\]|\\.)*)"', literals))
    octets = re.sub(r"\\x([0-9A-F]{2})", lambda found: chr(int(found[1], 16)), text)
    return octets.replace('\\"', '"').encode("latin-1").decode("cp1252")


def catalogue():
    """Texts by number: German, English. Markers of keys, and blanks and colons at the end, are left out as in the help."""
    source = (SOURCES / "store" / "textCatalogue.cpp").read_text(encoding="ascii")
    literals = r'((?:\s*"(?:[^"\\]|\\.)*")+)'
    found = re.findall(r"\{\s*(\d+)\s*,\s*" + literals + r"\s*,\s*" + literals + r"\s*\}", source)
    return {int(number): {"de": plain(c_text(german)), "en": plain(c_text(english))} for number, german, english in found}


def plain(text):
    return text.replace("&", "").strip().removesuffix(":")


def setting_keys():
    """Every key of the settings file by where it is named in the program."""
    settings = (SOURCES / "store" / "settings.h").read_text(encoding="ascii")
    lists = (SOURCES / "store" / "buttonLists.cpp").read_text(encoding="ascii")
    row = (SOURCES / "store" / "rowKeys.h").read_text(encoding="ascii")
    keys = re.search(r"namespace key \{(.*?)\} // namespace key", settings, re.DOTALL)[1]
    words = re.search(r"namespace store::word \{(.*?)\} // namespace store::word", row, re.DOTALL)[1]
    sections = re.search(r"namespace section \{(.*?)\} // namespace section", settings, re.DOTALL)[1]
    kinds = re.search(r"lists = \{\{(.*?)\}\};", lists, re.DOTALL)[1]
    quoted = r'"(\w+)"'
    return re.findall(quoted, keys + words), re.findall(quoted, sections + kinds)


# The checks.


def check_source():
    names = [topic.name for topic in book.topics()]
    expect(names[0] == book.START_TOPIC and len(names) == len(set(names)), "the contents begin with the start topic")
    texts = catalogue()
    expect(len(texts) > 50, "the catalogue is read")
    for language in book.LANGUAGES:
        same_names((file.stem for file in (book.HERE / language).glob("*.html")), names, f"{language}: one page a topic")
    for language in book.LANGUAGES:
        pages = book.pages(language)
        for page in pages:
            check_page(page)
            check_quotes(page, texts)
        quoted = {int(element.get("data-text")) for page in pages for element in page.body.iter()
                  if element.get("data-text")}
        same_names(quoted & set(texts), set(texts) - NOT_QUOTED, f"{language}: each text of the program is quoted")
        check_settings(next(page for page in pages if page.topic.name == "settings"))
        check_ways(pages)
        for page in pages:
            for words in WAYS_OUT[language].get(page.topic.name, ()):
                expect(words in book.text_of(page.body), f"{page.file}: the way out {words!r} is missing")
        check_pictures(language, pages)
    same_names(*(pictures_of(language) for language in book.LANGUAGES), "both languages have the same pictures")
    for topic in book.topics():
        check_same(*(book.page(language, topic) for language in book.LANGUAGES))


def check_ways(pages):
    """The links of a language's pages: each leads somewhere, and to each page there is one."""
    anchors = {page.file: {element.get("id") for element in page.body.iter()} - {None} for page in pages}
    linked = {f"{pages[0].language}/{book.START_TOPIC}.html"}
    for page in pages:
        for link in page.elements("a"):
            address = link.get("href", "")
            name, _, anchor = address.partition("#")
            target = resolved(page.file, name) if name else page.file
            expect(book.text_of(link), f"{page.file}: the link {address} has no words")
            if expect(target in anchors, f"{page.file}: the link {address!r} leads to no page of its language"):
                expect(not anchor or anchor in anchors[target], f"{page.file}: the link {address} leads to no place on the page")
                expect(anchor or target != page.file, f"{page.file}: a link leads to the page that it stands on")
                linked |= {target} - {page.file}
    same_names(linked, anchors, f"{pages[0].language}: each page is linked from another")


def pictures_of(language):
    return {path.relative_to(book.PICTURES / language).as_posix() for path in (book.PICTURES / language).rglob("*.*")}


def check_pictures(language, pages):
    """Each page shows pictures of its language, every one of them is shown, and each has a text of its own."""
    folder = f"pictures/{language}/"
    used, texts = set(), []
    for page in pages:
        for picture in page.elements("img"):
            target, text = resolved(page.file, picture.get("src", "")), (picture.get("alt") or "").strip()
            used.add(target.removeprefix(folder))
            expect(target.startswith(folder), f"{page.file}: {target} is no picture of its language")
            expect(len(text.split()) > 1, f"{page.file}: {target} has no text for those who cannot see it")
            texts.append(text)
    same_names(used, pictures_of(language), f"{language}: the pages show each picture")
    equal(sorted(texts), sorted(set(texts)), f"{language}: each picture has a text of its own")


def outline(page):
    """A page without its words, a line for each block: headings with what the program names so, then what stands below."""
    lines = []
    for element in page.body.iter():
        texts = [child.get("data-text") or book.text_of(child) for child in element.iter() if child.tag in ("b", "code")]
        if element.tag in ("h1", "h2", "h3"):
            lines.append(" ".join([element.tag, *texts]))
        elif element.tag in ("p", "pre", "div"):
            lines.append(element.tag)
        elif element.tag in ("ul", "ol", "table"):
            cells = [str(len(row)) for row in element] if element.tag == "table" else [str(len(element))]
            lines.append(" ".join([element.tag, *cells]))
        elif element.tag == "a":
            lines.append(f"a {element.get('href')}")
        elif element.tag == "img":
            lines.append("img " + element.get("src", "").rpartition("/")[2])
    return lines


def check_same(one, other):
    """Both languages say the same: the same headings, and below each the same blocks, rows, links and pictures."""
    headings = [[line for line in outline(page) if line[0] == "h"] for page in (one, other)]
    if not equal(*headings, f"{one.topic.name}: both languages have the same headings"):
        return
    for below in zip(*(parts(outline(page)) for page in (one, other))):
        heads, bodies = zip(*((part[0], sorted(part[1:])) for part in below))
        equal(*bodies, f"{one.topic.name}: both languages have the same below {heads[0]!r}")


def parts(lines):
    """What stands below each heading, the heading first."""
    found = []
    for line in lines:
        if line[0] == "h":
            found.append([])
        if found:
            found[-1].append(line)
    return found


def check_version():
    for language in book.LANGUAGES:
        sources = [file.read_text(encoding="utf-8") for file in sorted((book.HERE / language).glob("*.html"))]
        expect(any(book.PLACEHOLDER in text for text in sources), f"{language}: the help tells the version")
        expect(not any(re.search(r"Kestrel \d+\.\d", text) for text in sources), f"{language}: no page has a version of its own")
        start = book.text_of(book.page(language, book.topics()[0]).body)
        expect(f"Kestrel {book.version()}" in start, f"{language}: the start page tells the project's version")
        for picture in VERSION_PICTURES:
            data = (book.PICTURES / language / f"{picture}.png").read_bytes()
            expect(f"Kestrel\0{book.version()}".encode() in data,
                   f"pictures/{language}/{picture}.png shows another version: run tests/windows/pictures.py {picture}")


def check_page(page):
    tags = {element.tag for element in page.body.iter()} - {"body"}
    same_names(tags | book.TAGS, book.TAGS, f"{page.file}: only tags that the generators know")
    equal(book.text_of(page.elements("h1")[0]), page.title, f"{page.file}: its heading is its title")
    expect(page.keywords, f"{page.file}: has words for the index")
    expect(not any(text in page.title.lower() for text in EDITOR_TITLES), f"{page.file}: a title like EAGLE's")
    body = book.text_of(page.body)
    encoded = body.encode("cp1252", errors="replace").decode("cp1252")
    equal(encoded, body, f"{page.file}: all its letters are in the code page")


def check_quotes(page, texts):
    for element in page.body.iter():
        number = element.get("data-text")
        if number:
            expected = texts.get(int(number), {}).get(page.language)
            equal(book.text_of(element), expected, f"{page.file}: text {number} is spelled as in the program")


def check_settings(page):
    codes = {book.text_of(element) for element in page.elements("code")}
    keys, sections = setting_keys()
    for key in keys:
        expect(key in codes, f"{page.file}: the key {key} is missing")
    for section in sections:
        expect(f"[{section}]" in codes, f"{page.file}: the section [{section}] is missing")
    first_cells = {book.text_of(row.find("td")) for row in page.elements("tr") if row.find("td") is not None}
    same_names(first_cells, set(keys) - {"lastLbr"}, f"{page.file}: its tables name each key of the program and no other")


def check_compiled(file, folder):
    help_file = Unpacked(file, folder)
    sources = {language: book.pages(language) for language in book.LANGUAGES}
    pages = {page.file: page for of_language in sources.values() for page in of_language}
    pictures = {"pictures/" + str(path.relative_to(book.PICTURES)): path for path in book.PICTURES.rglob("*.png")}
    same_names(help_file.files, {*pages, *pictures, *COMPILER_FILES, "help.css", helpFile.CONTENTS_FILE,
                                 helpFile.INDEX_FILE}, "what is in the help file")
    read = {name: help_file.page(name) for name in pages if name in help_file.files}
    used = set()
    for name, page in read.items():
        equal(page.charset, "windows-1252", f"{name}: its charset")
        equal(page.title, pages[name].title, f"{name}: its title")
        expect(page.text.startswith(book.text_of(pages[name].body)), f"{name}: its text is that of the source")
        for link in page.links:
            check_link(name, link, read)
        for picture in page.pictures:
            target = resolved(name, picture)
            used.add(target)
            expect(target in help_file.files, f"{name}: the picture {picture} is missing")
        equal([resolved(name, style) for style in page.styles], ["help.css"], f"{name}: its style sheet")
    same_names(used, pictures, "each picture is shown on a page")
    for name, path in pictures.items():
        expect(name in help_file.files and help_file.data(name) == path.read_bytes(), f"{name}: the picture is as it was")
    check_tables(help_file, sources)


def resolved(name, address):
    return str((Path("/") / name).parent.joinpath(address).resolve().relative_to("/"))


def check_link(name, link, read):
    address, _, anchor = link.partition("#")
    target = resolved(name, address) if address else name
    if expect(target in read, f"{name}: the link {link} leads nowhere") and anchor:
        expect(anchor in read[target].anchors, f"{name}: the anchor of {link} is missing")


def check_tables(help_file, sources):
    start = {language: f"{language}/{book.START_TOPIC}.html" for language in book.LANGUAGES}
    equal(help_file.context_map(), {6000: start["de"], 16000: start["en"]}, "the topics of the context numbers")
    expected = []
    for language, pages in sources.items():
        expected.append((1, book.WORDS[language]["name"], start[language]))
        expected += [(2 + page.topic.level, page.title, page.file) for page in pages]
    equal(help_file.site_map(helpFile.CONTENTS_FILE), expected, "the contents")
    index = {(word, page.file) for pages in sources.values() for page in pages for word in page.keywords}
    same_names({(name, page) for _, name, page in help_file.site_map(helpFile.INDEX_FILE)}, index, "the index")
    equal(help_file.system(), {0: helpFile.CONTENTS_FILE, 1: helpFile.INDEX_FILE, 2: start["de"], 3: book.TITLE,
                               5: helpFile.WINDOW, "language": 0x407, "search": 1}, "the general data")
    window = help_file.windows()[helpFile.WINDOW]
    changes_title = 0x2000
    expect(window["panes"] & 0x20 and not window["panes"] & changes_title, "the window has a contents pane, its own title")
    equal((window["title"], window["contents"], window["index"], window["first"]),
          (book.TITLE, helpFile.CONTENTS_FILE, helpFile.INDEX_FILE, start["de"]), "the window")
    expect(not any(text in book.TITLE.lower() for text in EDITOR_TITLES), "the window's title is not like EAGLE's")
    expect(not any(text.startswith("/") for text in help_file.strings()), "no path of this machine is in the help file")


def check_second_reader(file, folder):
    """The compiler's own reader sees the same pages."""
    names = subprocess.run(["chmls", "--name-only", "list", file], capture_output=True, text=True, check=True).stdout.split()
    same_names({name.lstrip("/") for name in names if name.endswith(".html")},
               {str(path.relative_to(folder)) for path in folder.rglob("*.html")}, "a second reader sees the same pages")


def check_documents():
    made = toMarkdown.documents()
    there = {str(path.relative_to(book.DOCS)) for path in book.DOCS.rglob("*") if path.is_file()}
    same_names(there, made, "the pages of docs/help")
    for name, text in made.items():
        file = book.DOCS / name
        expect(file.exists() and file.read_text(encoding="utf-8") == text,
               f"docs/help/{name} is not up to date: run resources/help/make-help.py docs")
        for address in re.findall(r"\]\(([^)]+)\)", text):
            expect((file.parent / address).resolve().is_file(), f"docs/help/{name}: {address} is missing")


def slug(heading):
    """The anchor that a heading gets on the web."""
    return re.sub(r"[^\w\- ]", "", heading.strip().lower()).replace(" ", "-")


def check_other_documents():
    """README and its like: where their links lead, and that the pictures that stand beside them are shown."""
    shown = set()
    files = [*book.PROJECT.glob("*.md"), *(book.PROJECT / "docs").glob("*.md"), book.PROJECT / "resources" / "README.md"]
    for file in files:
        name, text = file.relative_to(book.PROJECT), file.read_text(encoding="utf-8")
        text = re.sub(r"`[^`\n]*`|^    .*$", "", text, flags=re.MULTILINE)  # code is no link
        for picture, words, address in re.findall(r"(!?)\[([^\]]*)\]\(([^)\s]+)\)", text):
            path, _, anchor = address.partition("#")
            target = (file.parent / path).resolve() if path else file
            if expect(target.exists(), f"{name}: {address} is missing") and anchor:
                headings = re.findall(r"^#+ (.*)$", target.read_text(encoding="utf-8"), re.MULTILINE)
                expect(anchor in map(slug, headings), f"{name}: {address} has no such heading")
            expect(words.strip(), f"{name}: {address} has no words")
            if picture:
                expect(len(words.split()) > 1, f"{name}: {address} has no text for those who cannot see it")
                shown.add(target)
    pictures = {path for path in (book.PROJECT / "docs").glob("*.*") if path.suffix in (".png", ".gif", ".jpg")}
    same_names(map(str, shown), map(str, pictures), "the documents show each picture of docs, and no other")


def check_all(given):
    check_source()
    check_version()
    with tempfile.TemporaryDirectory() as folder:
        first, second = Path(folder) / "first" / helpFile.FILE_NAME, Path(folder) / "second" / helpFile.FILE_NAME
        for file in (first, second):
            file.parent.mkdir()
            helpFile.make(file.parent / "source", file)
        expect(first.read_bytes() == second.read_bytes(), "the same source gives the same bytes")
        unpacked = Path(folder) / "unpacked"
        check_compiled(first, unpacked)
        check_second_reader(first, unpacked)
        for file in map(Path, given):
            expect(file.exists() and file.read_bytes() == first.read_bytes(), f"{file} is what the source gives")
    check_documents()
    check_other_documents()


def main(given):
    try:
        check_all(given)
    except (OSError, ValueError, RuntimeError) as error:  # a page that cannot be read, a compiler that complains
        expect(False, f"{type(error).__name__}: {error}")
    print(f"{passed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
