#!/usr/bin/env python3
"""The manual says what the windows say, in both languages, and can be read without a network.

Captions stand in <b>, hints and messages in <samp>, words of the game's files in <code>.
"""

import html.parser
import pathlib
import re
import struct
import unittest

TREE = pathlib.Path(__file__).resolve().parent.parent.parent
MANUAL = TREE / "manual" / "Anleitung.htm"
LANGUAGES = {"de": "Deutsch", "en": "English"}

# A vehicle was added, two questions about deleting one, and the buttons for both: nobody sees them.
NEVER_SHOWN = {63, 91, 92, 93, 94}
CAPTIONS_WITHOUT_ENTRY = {"Info", "<", ">", "<<", ">>"}
FORBIDDEN = {"link", "iframe", "object", "embed", "video", "audio", "form", "base"}
EMPTY = {"meta", "img", "br", "hr", "col", "wbr"}


class Page(html.parser.HTMLParser):
    """What the tests want to know of the page: elements, and texts by language and element."""

    def __init__(self, text):
        super().__init__()
        self.elements = []
        self.texts = {code: {"b": set(), "samp": set(), "code": set()} for code in LANGUAGES}
        self.open = []
        self.styles = ""
        self.feed(text)
        self.close()

    def handle_starttag(self, tag, attributes):
        self.elements.append((tag, dict(attributes)))
        if tag not in EMPTY:
            self.open.append([tag, dict(attributes), ""])

    def handle_data(self, data):
        for element in self.open:
            element[2] += data

    def handle_endtag(self, tag):
        name, _, text = self.open.pop()
        assert name == tag, f"</{tag}> closes <{name}>"
        if tag == "style":
            self.styles += text
        language = self.language()
        if language and tag in self.texts[language]:
            self.texts[language][tag].add(" ".join(text.split()))

    def language(self):
        articles = [attributes.get("id") for tag, attributes, _ in self.open if tag == "article"]
        return articles[0] if articles else None

    def all(self, tag):
        return [attributes for name, attributes in self.elements if name == tag]

    def ids(self):
        return [attributes["id"] for _, attributes in self.elements if "id" in attributes]


def entries_of(code):
    """The entries of a language file as they are read on screen."""
    file = TREE / "language" / f"{LANGUAGES[code]}.lng"
    lines = file.read_bytes().decode("cp1252").splitlines()
    return [re.sub("&(.)", r"\1", line).strip() for line in lines]


def shown_entries(code):
    return [entry for number, entry in enumerate(entries_of(code)) if number not in NEVER_SHOWN]


def words_of_table(file, *names):
    """The texts that a table of the sources lists."""
    source = (TREE / "src" / "screen" / file).read_text(encoding="utf-8")
    words = []
    for name in names:
        table = re.search(rf"\b{name}\b[^=]*=\s*\{{(.*?)\}};", source, re.DOTALL).group(1)
        words += re.findall(r'"([^"]*)"', table)
    return words


FLAGS = words_of_table("Fields.cpp", "kFlagCaptions")
CHOICES = words_of_table("Fields.h", "kTypes", "kAnimations", "kClasses", "kWheels")


class Manual(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.page = Page(MANUAL.read_bytes().decode("utf-8"))

    def assert_none(self, code, faults):
        self.assertEqual([], sorted(faults), LANGUAGES[code])

    def test_the_tables_were_found(self):
        self.assertEqual((28, 34), (len(FLAGS), len(CHOICES)))
        for code in LANGUAGES:
            self.assertEqual(182, len(entries_of(code)))

    def test_every_caption_hint_and_message_is_named_as_the_language_file_has_it(self):
        for code, texts in self.page.texts.items():
            self.assert_none(code, set(shown_entries(code)) - texts["b"] - texts["samp"])

    def test_every_flag_is_named(self):
        for code, texts in self.page.texts.items():
            self.assert_none(code, set(FLAGS) - texts["b"])

    def test_every_fixed_choice_is_named(self):
        for code, texts in self.page.texts.items():
            self.assert_none(code, set(CHOICES) - texts["code"])

    def test_no_caption_is_named_that_there_is_not(self):
        for code, texts in self.page.texts.items():
            entries = set(shown_entries(code))
            self.assert_none(code, texts["b"] - entries - set(FLAGS) - CAPTIONS_WITHOUT_ENTRY)

    def test_no_message_is_named_that_there_is_not(self):
        sources = "".join(file.read_text(encoding="utf-8") for file in TREE.glob("src/**/*.cpp"))
        for code, texts in self.page.texts.items():
            strange = texts["samp"] - set(shown_entries(code))
            self.assert_none(code, {text for text in strange if f'"{text}' not in sources})

    def test_every_heading_and_peculiarity_is_there_in_both_languages(self):
        german = [each[3:] for each in self.page.ids() if each.startswith("de-")]
        english = [each[3:] for each in self.page.ids() if each.startswith("en-")]
        self.assertEqual(german, english)

    def test_names_of_places_are_unique(self):
        ids = self.page.ids()
        self.assertEqual(sorted(set(ids)), sorted(ids))

    def test_every_link_leads_to_a_place_of_the_page(self):
        places = {"#" + place for place in self.page.ids()}
        links = [attributes["href"] for attributes in self.page.all("a")]
        self.assertEqual([], [link for link in links if link not in places])
        self.assertTrue({"#de", "#en"} <= set(links))

    def test_every_picture_is_there_in_its_size_and_has_words(self):
        for picture in self.page.all("img"):
            with self.subTest(picture=picture["src"]):
                head = (MANUAL.parent / picture["src"]).read_bytes()[:24]
                size = struct.unpack(">II", head[16:])
                self.assertEqual(size, (int(picture["width"]), int(picture["height"])))
                self.assertTrue(picture.get("alt", "").strip())

    def test_every_picture_is_shown(self):
        files = {f"pictures/{file.name}" for file in (MANUAL.parent / "pictures").iterdir()}
        self.assertEqual(files, {picture["src"] for picture in self.page.all("img")})

    def test_nothing_comes_from_elsewhere(self):
        self.assertEqual([], [tag for tag, _ in self.page.elements if tag in FORBIDDEN])
        for tag, attributes in self.page.elements:
            for name in ("src", "href", "srcset", "poster", "style", "background"):
                self.assertNotRegex(attributes.get(name, ""), r"^\s*[a-zA-Z]+:|^\s*//|url\(",
                                    f"{name} of {tag}")
        self.assertNotRegex(self.page.styles, r"url\(|@import")

    def test_its_one_script_stands_in_it_and_turns_the_halves(self):
        self.assertEqual([{}], self.page.all("script"))
        turned = re.findall(r'getElementById\("(\w+)"\)', MANUAL.read_text(encoding="utf-8"))
        self.assertEqual(["en", "de"], turned)

    def test_it_is_read_in_its_own_encoding(self):
        self.assertIn({"charset": "utf-8"}, self.page.all("meta"))


if __name__ == "__main__":
    unittest.main()
