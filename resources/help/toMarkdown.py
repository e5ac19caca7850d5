"""The pages of docs/help: the help in Markdown, for readers on the web."""

import re

import book

PICTURES_FROM_PAGE = "../../../resources/help/"  # from docs/help/LANGUAGE


def _escaped(text):
    return re.sub(r"([\\`*_\[\]<>|#])", r"\\\1", re.sub(r"\s+", " ", text))


def _code(element):
    text = "".join(element.itertext())
    if "`" in text:
        raise ValueError(f"a backtick in code: {text}")
    return f"`{text}`"


def _address(address):
    """Links to pages become links to their Markdown."""
    if re.match(r"[a-z]+:", address):
        return address
    return re.sub(r"\.html(?=$|#)", ".md", address)


def _inline(element):
    """What is in an element, as one line."""
    text = _escaped(element.text or "")
    for child in element:
        text += _inline_element(child) + _escaped(child.tail or "")
    return text


def _inline_element(element):
    inner = _inline(element)
    match element.tag:
        case "b":
            return f"**{inner}**"
        case "i":
            return f"*{inner}*"
        case "code":
            return _code(element)
        case "kbd":
            return f"<kbd>{inner}</kbd>"
        case "br":
            return "<br>"
        case "a":
            return f"[{inner}]({_address(element.get('href'))})"
        case "img":
            return f"![{_escaped(element.get('alt') or '')}]({PICTURES_FROM_PAGE}{element.get('src').removeprefix('../')})"
    raise ValueError(f"no Markdown for <{element.tag}> inside a line")


def _table(element):
    rows = [[_inline(cell).strip() for cell in row] for row in element.iter("tr")]
    lines = ["| " + " | ".join(row) + " |" for row in rows]
    lines.insert(1, "|" + " --- |" * len(rows[0]))
    return lines


def _list(element):
    lines = []
    for number, item in enumerate(element, 1):
        mark = f"{number}. " if element.tag == "ol" else "- "
        lines.append(mark + _inline(item).strip())
    return lines


def _block(element):
    """The lines of a block."""
    match element.tag:
        case "h1" | "h2" | "h3":
            return ["#" * int(element.tag[1]) + " " + _inline(element).strip()]
        case "p":
            return [_inline(element).strip()]
        case "ul" | "ol":
            return _list(element)
        case "table":
            return _table(element)
        case "pre":
            return ["```", *"".join(element.itertext()).strip("\n").split("\n"), "```"]
        case "div":
            return [("> " + line).rstrip() for line in _blocks(element)]
    raise ValueError(f"no Markdown for the block <{element.tag}>")


def _blocks(parent):
    """The blocks in an element, with a blank line between."""
    lines = []
    for element in parent:
        lines += [*([""] if lines else []), *_block(element)]
    return lines


def _page(page, before, after):
    words = book.WORDS[page.language]
    ways = [f"[{words['contents']}](../README.md)"]
    if before:
        ways.append(f"{words['previous']}: [{_escaped(before.title)}]({before.topic.name}.md)")
    if after:
        ways.append(f"{words['next']}: [{_escaped(after.title)}]({after.topic.name}.md)")
    ways.append(f"[{words['other']}](../{book.other(page.language)}/{page.topic.name}.md)")
    return "\n".join([*_blocks(page.body), "", "---", "", " | ".join(ways)]) + "\n"


def _contents(of_language):
    lines = []
    for language, pages in of_language.items():
        lines += [f"# {book.WORDS[language]['book']}", ""]
        lines += [f"{'  ' * page.topic.level}- [{_escaped(page.title)}]({language}/{page.topic.name}.md)" for page in pages]
        lines.append("")
    return "\n".join(lines)


def documents():
    """The text of each file of docs/help by its path there."""
    of_language = {language: book.pages(language) for language in reversed(book.LANGUAGES)}
    made = {"README.md": _contents(of_language)}
    for pages in of_language.values():
        for number, page in enumerate(pages):
            before = pages[number - 1] if number else None
            after = pages[number + 1] if number + 1 < len(pages) else None
            made[page.file.removesuffix(".html") + ".md"] = _page(page, before, after)
    return made
