"""The texts that the program shows: those of its code, its layout files and its Info.plist."""

import plistlib
import re
import xml.etree.ElementTree

_LITERALS = r'((?:"(?:[^"\\]|\\.)*"\s*)+)'
_TEXT = re.compile(rf"\bLocalizableText\s+\w+\s*{{\s*{_LITERALS},\s*{_LITERALS}}}")
_LITERAL = re.compile(r'"((?:[^"\\]|\\.)*)"')

# Leave out placeholders: they are example addresses, the same in every language.
_SHOWN_ATTRIBUTES = ["title", "toolTip", "label"]
_SPOKEN_ATTRIBUTES = ["description", "help"]


def _joined(literals):
    return re.sub(r"\\(.)", r"\1", "".join(_LITERAL.findall(literals)))


def texts_of_code(source):
    """The translators' comment by key, for every LocalizableText in the source."""
    return {_joined(key): _joined(comment) for key, comment in _TEXT.findall(source)}


def shown_attributes(element):
    """The names of those attributes of an element that may hold a text to show or to speak."""
    if element.get("systemMenu") == "main":  # the menu bar, whose own title is never shown
        return []
    if element.tag == "accessibility":
        return _SPOKEN_ATTRIBUTES
    if element.tag == "userDefinedRuntimeAttribute":
        return ["value"] if "accessibility" in element.get("keyPath", "") else []
    return _SHOWN_ATTRIBUTES


def texts_of_layout(xib):
    """The keys of the texts in a layout file that the window shows or a screen reader speaks."""
    elements = xml.etree.ElementTree.fromstring(xib).iter()
    texts = {element.get(name) for element in elements for name in shown_attributes(element)}
    return texts - {None, ""}


def texts_of_information(plist):
    """For each name in Info.plist, the key of the text that macOS shows."""
    information = plistlib.loads(plist)
    names = dict.fromkeys(["CFBundleDisplayName", "CFBundleName"], information["CFBundleName"])
    reasons = {name: text for name, text in information.items() if name.endswith("UsageDescription")}
    return names | reasons
