"""The source of the help: which topics there are, in which order, and what is in their pages.

A page is a file LANGUAGE/TOPIC.html, UTF-8, in the part of HTML that `TAGS` names and as well-formed as XML, so that it can be
opened in a browser as it stands. Texts of the program that a page quotes carry the number of the text in the catalogue:
<b data-text="1016">Ok</b>. The program's version is put in for @PROJECT_VERSION@.
"""

import re
import sys
import xml.etree.ElementTree as tree
from dataclasses import dataclass
from pathlib import Path

HERE = Path(__file__).resolve().parent
PROJECT = HERE.parents[1]
PICTURES = HERE / "pictures"
STYLE = HERE / "help.css"
DOCS = PROJECT / "docs" / "help"

sys.path.insert(0, str(PROJECT / "tools"))
from version import PLACEHOLDER, version  # noqa: E402, the way to it stands above

LANGUAGES = ("de", "en")
START_TOPIC = "index"
CONTEXTS = {"de": 6000, "en": 16000}  # the numbers by which the program opens the start topics
TITLE = "EAGLE Kestrel Bench"

TAGS = {"h1", "h2", "h3", "p", "ul", "ol", "li", "table", "tr", "th", "td", "pre", "code", "kbd", "b", "i", "a", "img",
        "div", "br"}


@dataclass
class Topic:
    name: str
    level: int  # 0 for a chapter, 1 for a page below it


@dataclass
class Page:
    language: str
    topic: Topic
    title: str
    keywords: list
    body: tree.Element

    @property
    def file(self):
        return f"{self.language}/{self.topic.name}.html"

    def elements(self, tag):
        return list(self.body.iter(tag))


def topics():
    found = []
    for line in (HERE / "contents.txt").read_text(encoding="utf-8").splitlines():
        name = line.strip()
        if name:
            found.append(Topic(name, (len(line) - len(line.lstrip())) // 2))
    return found


def page(language, topic):
    """Reads one page. Raises ValueError where it is not well formed or lacks a part that every page has."""
    file = HERE / language / f"{topic.name}.html"
    try:
        root = tree.fromstring(file.read_text(encoding="utf-8").replace(PLACEHOLDER, version()))
    except tree.ParseError as error:
        raise ValueError(f"{file}: {error}") from error
    title, body = root.find("head/title"), root.find("body")
    keywords = root.find("head/meta[@name='keywords']")
    if title is None or body is None or keywords is None:
        raise ValueError(f"{file}: no title, no keywords or no body")
    words = [word.strip() for word in keywords.get("content").split(";")]
    return Page(language, topic, title.text, [word for word in words if word], body)


def pages(language):
    """All pages of a language in the order of the contents."""
    return [page(language, topic) for topic in topics()]


def text_of(element):
    """All text in an element, each run of blanks and line ends as one blank."""
    return re.sub(r"\s+", " ", "".join(element.itertext())).strip()


# What is added to a page, by language.
WORDS = {
    "de": {"name": "Deutsch", "other": "This page in English", "contents": "Inhalt", "previous": "Zurück",
           "next": "Weiter", "book": "Hilfe zu Kestrel"},
    "en": {"name": "English", "other": "Diese Seite auf Deutsch", "contents": "Contents", "previous": "Previous",
           "next": "Next", "book": "Help for Kestrel"},
}


def other(language):
    return LANGUAGES[1 - LANGUAGES.index(language)]
