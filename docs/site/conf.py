"""The reference site: guides, commands, Python, C and C++ interfaces, schemas, gallery. By scripts/docs."""

import os
import re
import sys
from pathlib import Path

from sphinx.search.en import SearchEnglish

SOURCE = Path(os.environ["ORV3CAL_SOURCE"])
BUILD = Path(os.environ["ORV3CAL_BUILD"])
sys.path.insert(0, str(BUILD / "python"))

project = "Orv3Cal"
author = "Orv3Cal"
release = re.search(r"VERSION (\S+)", (SOURCE / "CMakeLists.txt").read_text("utf-8")).group(1)
extensions = ["myst_parser", "breathe", "sphinx.ext.autodoc"]
myst_heading_anchors = 4
# A link of a guide to a folder or a file of the sources leads nowhere here.
suppress_warnings = ["myst.xref_missing", "myst.header", "misc.highlighting_failure", "toc.not_readable"]
breathe_projects = {"orv3cal": str(BUILD / "docs" / "doxygen" / "xml")}
breathe_default_project = "orv3cal"
breathe_default_members = ("members",)
cpp_id_attributes = ["ORV3CAL_API", "ORV3_API", "ORV3_CALL"]
c_id_attributes = cpp_id_attributes
autodoc_member_order = "bysource"
html_theme = "sphinx_rtd_theme"
html_show_sourcelink = False
html_copy_source = False
html_search_language = "en-zh"
html_static_path = ["_static"]
html_extra_path = ["extra"]  # the pictures of the gallery
exclude_patterns = ["extra"]
html_css_files = ["site.css"]
html_last_updated_fmt = None
html_show_copyright = False


class PairSearch(SearchEnglish):
    """English words; Chinese, which has no spaces between words, as its pairs of characters."""

    lang = "en-zh"
    js_splitter_code = r"""
function splitQuery(query) {
  const pairs = (run) => " " + Array.from({length: Math.max(1, run.length - 1)}, (_, at) => run.slice(at, at + 2)).join(" ") + " ";
  return query.replace(/[\u4e00-\u9fff]+/g, pairs).split(/[^\p{L}\p{N}_]+/u).filter((word) => word);
}
"""

    def split(self, text):
        return re.findall(r"\w+", re.sub("[\u4e00-\u9fff]+", lambda run: f" {' '.join(self.pairs(run[0]))} ", text))

    @staticmethod
    def pairs(run):
        return [run[at:at + 2] for at in range(max(1, len(run) - 1))]


def setup(app):
    app.add_search_language(PairSearch)
