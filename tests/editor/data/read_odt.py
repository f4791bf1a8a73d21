"""Prints the paragraphs of an OpenDocument text: "|" before one that begins a page, "*" before a bold one."""
import sys

from odf.opendocument import load
from odf.style import ParagraphProperties, Style, TextProperties
from odf.teletype import extractText
from odf.text import P

document = load(sys.argv[1])
styles = {style.getAttribute("name"): style for style in document.getElementsByType(Style)}


def has(name, kind, attribute, value):
    style = styles.get(name)
    return style is not None and any(
        each.getAttribute(attribute) == value for each in style.getElementsByType(kind)
    )


for paragraph in document.getElementsByType(P):
    name = paragraph.getAttribute("stylename")
    spans = [child for child in paragraph.childNodes if getattr(child, "qname", ("", ""))[1] == "span"]
    mark = "|" if has(name, ParagraphProperties, "breakbefore", "page") else ""
    if any(has(span.getAttribute("stylename"), TextProperties, "fontweight", "bold") for span in spans):
        mark += "*"
    print(mark + extractText(paragraph) or "-")
