"""Looks up every link of the pages in a folder, HTML and Markdown: the file that it names, and the place within it.

    check_links.py FOLDER

Links that lead to the network are not followed. Exit status 1 and a line for each link that leads nowhere.
"""

import re
import sys
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import unquote, urlsplit


class HtmlPage(HTMLParser):
    def __init__(self, text):
        super().__init__()
        self.links, self.places = [], set()
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        self.links += [values[name] for name in ("href", "src") if values.get(name)]
        self.places |= {values[name] for name in ("id", "name") if values.get(name)}


class MarkdownPage:
    """A heading is the place of its words in small letters, joined by hyphens."""

    def __init__(self, text):
        prose = re.sub(r"^```.*?^```$", "", text, flags=re.M | re.S)
        self.links = re.findall(r"\]\(([^)\s]+)\)", re.sub(r"`[^`\n]*`", "", prose))
        headings = re.findall(r"^#+ (.*)$", prose, re.M)
        self.places = {re.sub(r"[^\w -]", "", each).strip().lower().replace(" ", "-") for each in headings}


PAGES = {".html": HtmlPage, ".md": MarkdownPage}


def faults(root, pages):
    for file, page in pages.items():
        for link in dict.fromkeys(page.links):
            parts = urlsplit(link)
            if parts.scheme or parts.netloc:
                continue
            target = (file.parent / unquote(parts.path)).resolve() if parts.path else file
            place = unquote(parts.fragment)
            if not target.exists() or target in pages and place and place not in pages[target].places:
                yield f"{file.relative_to(root)}: {link}"


root = Path(sys.argv[1]).resolve()
pages = {file: PAGES[file.suffix](file.read_text("utf-8"))
         for file in sorted(root.rglob("*")) if file.suffix in PAGES and not file.is_symlink()}
found = list(faults(root, pages)) if pages else [f"{root}: no page"]
print("".join(f"{line}\n" for line in found), end="")
sys.exit(1 if found else 0)
