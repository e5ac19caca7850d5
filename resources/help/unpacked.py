"""A compiled help file, unpacked again with a reader that has nothing to do with the compiler."""

import re
import struct
import subprocess
from html.parser import HTMLParser

CODE_PAGE = "cp1252"


class Html(HTMLParser):
    """What a page holds: links, pictures, style sheets, anchors, its charset, title and text."""

    def __init__(self, text):
        super().__init__()
        self.links, self.pictures, self.styles, self.anchors, self.charset = [], [], [], set(), ""
        self._inside, self._texts = [], {"title": "", "body": ""}
        self.feed(text)

    def handle_starttag(self, tag, attrs):
        found = dict(attrs)
        self.anchors |= {found[name] for name in ("id", "name") if name in found and tag != "meta"}
        if tag == "a" and "href" in found:
            self.links.append(found["href"])
        if tag == "img":
            self.pictures.append(found["src"])
        if tag == "link":
            self.styles.append(found["href"])
        if tag == "meta" and "charset=" in found.get("content", ""):
            self.charset = found["content"].split("charset=")[1]
        if tag in self._texts:
            self._inside.append(tag)

    def handle_endtag(self, tag):
        if tag in self._inside:
            self._inside.remove(tag)

    def handle_data(self, data):
        for tag in self._inside:
            self._texts[tag] += data

    @property
    def title(self):
        return self._texts["title"]

    @property
    def text(self):
        return re.sub(r"\s+", " ", self._texts["body"]).strip()


class SiteMap(HTMLParser):
    """The entries of a contents or index file: level, name, page."""

    def __init__(self, text):
        super().__init__()
        self.entries, self._level, self._entry = [], 0, {}
        self.feed(text)

    def handle_starttag(self, tag, attrs):
        if tag == "ul":
            self._level += 1
        if tag == "object":
            self._entry = {}
        if tag == "param":
            found = dict(attrs)
            self._entry[found["name"].lower()] = found["value"]

    def handle_endtag(self, tag):
        if tag == "ul":
            self._level -= 1
        if tag == "object" and "local" in self._entry:
            self.entries.append((self._level, self._entry["name"], self._entry["local"]))


class Unpacked:
    """Unpacks into an empty folder. Raises RuntimeError if the file cannot be read."""

    def __init__(self, file, folder):
        done = subprocess.run(["extract_chmLib", file, folder], capture_output=True, text=True, check=False)
        if done.returncode != 0:
            raise RuntimeError(f"{file} cannot be unpacked: {done.stdout}{done.stderr}")
        self.folder = folder
        self.files = {str(path.relative_to(folder)) for path in folder.rglob("*") if path.is_file()}

    def data(self, name):
        return (self.folder / name).read_bytes()

    def page(self, name):
        return Html(self.data(name).decode(CODE_PAGE))

    def site_map(self, name):
        return SiteMap(self.data(name).decode(CODE_PAGE)).entries

    def string(self, place):
        data = self.data("#STRINGS")
        return data[place:data.index(b"\0", place)].decode(CODE_PAGE)

    def strings(self):
        return [text.decode(CODE_PAGE) for text in self.data("#STRINGS").split(b"\0")]

    def context_map(self):
        """Topics by context number."""
        data = self.data("#IVB")
        (length,) = struct.unpack_from("<L", data)
        if length != len(data) - 4 or length % 8:
            raise RuntimeError(f"the context map says that it is {length} bytes long")
        return {number: self.string(place) for number, place in struct.iter_unpack("<2L", data[4:])}

    def system(self):
        """The texts of the file's general data, by their codes: 0 contents, 1 index, 2 first topic, 3 title, 5 window."""
        data, found, place = self.data("#SYSTEM"), {}, 4
        while place < len(data):
            code, length = struct.unpack_from("<2H", data, place)
            value = data[place + 4:place + 4 + length]
            if code in (0, 1, 2, 3, 5):
                found[code] = value.rstrip(b"\0").decode(CODE_PAGE)
            if code == 4:
                found["language"], _, found["search"] = struct.unpack_from("<3L", value)
            place += 4 + length
        return found

    def windows(self):
        """The window types: name, title, navigation panes, buttons, first page."""
        data = self.data("#WINDOWS")
        count, size = struct.unpack_from("<2L", data)
        found = {}
        for number in range(count):
            words = struct.unpack_from(f"<{size // 4}L", data, 8 + number * size)
            found[self.string(words[2])] = {"title": self.string(words[5]), "panes": words[4], "valid": words[3],
                                            "contents": self.string(words[24]), "index": self.string(words[25]),
                                            "first": self.string(words[26]), "home": self.string(words[27])}
        return found
