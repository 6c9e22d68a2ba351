"""Reads the sources of the handbook, resources/help.

A page:  # Title
         keywords: words that F1 and the index lead here from, separated by commas
         topics: numbers by which windows name it (only where there are any)

         text in Markdown

contents.txt has the chapters and, indented below each, the files of its pages in their order.
"""

import html.parser
import re
from dataclasses import dataclass, field
from pathlib import Path

import markdown
from markdown.extensions.toc import slugify


class HandbookError(Exception):
    """A source that can't be made into a page; the text names file and line."""


@dataclass
class Heading:
    anchor: str
    text: str


@dataclass
class Page:
    name: str  # without ".md"
    title: str
    keywords: list
    topics: list
    source: str  # the text below the first lines
    html: str = ""
    text: str = ""  # without markup, on one line
    prose: str = ""  # the same without what stands as code
    headings: list = field(default_factory=list)
    links: list = field(default_factory=list)
    pictures: list = field(default_factory=list)

    @property
    def file(self):
        return self.name + ".html"


@dataclass
class Chapter:
    title: str
    pages: list


class _Reader(html.parser.HTMLParser):
    """Collects text, headings, links and pictures of a page."""

    def __init__(self, page):
        super().__init__(convert_charrefs=True)
        self.page = page
        self.pieces = []
        self.prose = []
        self.code = 0
        self.heading = None

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        if re.fullmatch("h[1-6]", tag):
            self.heading = Heading(values.get("id", ""), "")
        elif tag == "a" and "href" in values:
            self.page.links.append(values["href"])
        elif tag == "img":
            self.page.pictures.append(values.get("src", ""))
            self.pieces.append(" " + values.get("alt", ""))
        if tag in ("code", "pre"):
            self.code += 1
        if tag in ("p", "li", "td", "th", "tr", "pre", "br", "dt", "dd"):
            self.pieces.append(" ")
            self.prose.append(" ")

    def handle_endtag(self, tag):
        if tag in ("code", "pre"):
            self.code -= 1
        if re.fullmatch("h[1-6]", tag) and self.heading:
            self.page.headings.append(self.heading)
            self.heading = None
            self.pieces.append(" ")

    def handle_data(self, data):
        self.pieces.append(data)
        self.prose.append(" " if self.code else data)
        if self.heading:
            self.heading.text += data


def _listed(line, name, path, number):
    """The values behind "name:"."""
    values = [value.strip() for value in line[len(name) + 1:].split(",")]
    if not all(values):
        raise HandbookError(f"{path}:{number}: an empty value among the {name}")
    return values


def read_page(path):
    lines = path.read_text(encoding="utf-8").split("\n")
    if not lines[0].startswith("# "):
        raise HandbookError(f"{path}:1: the first line is the title, \"# Title\"")
    if len(lines) < 2 or not lines[1].startswith("keywords:"):
        raise HandbookError(f"{path}:2: the second line is \"keywords: ...\"")
    keywords = _listed(lines[1], "keywords", path, 2)
    topics, start = [], 2
    if len(lines) > 2 and lines[2].startswith("topics:"):
        topics, start = _listed(lines[2], "topics", path, 3), 3
        if not all(re.fullmatch("[0-9]{1,6}", topic) for topic in topics):
            raise HandbookError(f"{path}:3: topics are numbers")
    return Page(path.stem, lines[0][2:].strip(), keywords, topics, "\n".join(lines[start:]))


def _convert(page):
    toc = {"toc": {"slugify": slugify}}
    engine = markdown.Markdown(extensions=["tables", "fenced_code", "def_list", "sane_lists", "toc"],
                               extension_configs=toc, output_format="html")
    body = engine.convert(page.source)
    body = body.replace("\n</code></pre>", "</code></pre>")
    body = body.replace("<p><img ", '<p class="picture"><img ')
    page.html = re.sub(r'href="([A-Za-z0-9._-]+)\.md(#[^"]*)?"', r'href="\1.html\2"', body)
    reader = _Reader(page)
    reader.feed(page.html)
    reader.close()
    page.text = " ".join("".join(reader.pieces).split())
    page.prose = " ".join("".join(reader.prose).split())


def read_contents(folder):
    """The chapters with their pages, converted."""
    chapters = []
    path = folder / "contents.txt"
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if not line.strip():
            continue
        if not line[0].isspace():
            chapters.append(Chapter(line.strip(), []))
            continue
        if not chapters:
            raise HandbookError(f"{path}:{number}: a page in front of the first chapter")
        file = folder / line.strip()
        if file.suffix != ".md" or not file.is_file():
            raise HandbookError(f"{path}:{number}: there is no page {line.strip()}")
        page = read_page(file)
        _convert(page)
        chapters[-1].pages.append(page)
    return chapters


def _begins(text, word):
    """The text begins with the word, which isn't a piece of a longer one there."""
    rest = text[len(word):]
    return text.startswith(word) and (not rest or not (rest[0].isalnum() or word[-1] == "/"))


def anchor_of(page, keyword):
    """The section whose heading is the keyword, or begins with it; empty: the whole page explains it."""
    wanted = keyword.casefold()
    if _begins(page.title.casefold(), wanted):
        return ""
    headings = [(heading.text.strip().casefold(), heading.anchor) for heading in page.headings]
    exact = [anchor for text, anchor in headings if text == wanted]
    longer = [word.casefold() for word in page.keywords if len(word) > len(keyword)]
    begins = [anchor for text, anchor in headings
              if _begins(text, wanted) and not any(_begins(text, word) for word in longer)]
    return (exact + begins + [""])[0]
