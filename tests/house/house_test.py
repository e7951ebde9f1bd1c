"""Holds the tree to the rules of the house, and each rule to an example that breaks it."""

import unittest
from pathlib import Path

import house_rules as rules

ROOT = Path(__file__).resolve().parents[2]
TEXT_SUFFIXES = {".h", ".cpp", ".cmake", ".txt", ".md", ".py", ".sh", ".rc", ".json", ".manifest"}
SELF = "tests/house/house_rules.py"


def sources(*folders, suffixes=(".h", ".cpp")):
    for folder in folders:
        for path in sorted((ROOT / folder).rglob("*")):
            if path.suffix in suffixes and path.is_file():
                yield path.relative_to(ROOT).as_posix(), path.read_text(encoding="latin-1")


def all_texts():
    yield from sources(
        "src", "lab", "tests", "bench", "fuzz", "docs", "scripts", "cmake", "resources",
        suffixes=TEXT_SUFFIXES)
    for path in sorted(ROOT.iterdir()):
        if path.is_file() and (path.suffix in TEXT_SUFFIXES or path.name == "run"):
            yield path.name, path.read_text(encoding="latin-1")


def complaints(rule, files):
    return [line for path, text in files if path != SELF for line in rule(path, text)]


class Tree(unittest.TestCase):
    maxDiff = None

    def test_rooms_include_only_what_lies_below_them(self):
        self.assertEqual([], complaints(rules.include_complaints, sources("src")))

    def test_the_product_calls_nothing_that_throws_on_bad_data(self):
        self.assertEqual([], complaints(rules.call_complaints, sources("src", "lab")))

    def test_nothing_is_left_unfinished_and_no_path_of_a_developer_is_kept(self):
        self.assertEqual([], complaints(rules.word_complaints, all_texts()))

    def test_every_header_guards_itself(self):
        files = sources("src", "lab", "tests", "bench", suffixes=(".h",))
        self.assertEqual([], complaints(rules.pragma_complaints, files))


class Rules(unittest.TestCase):
    def assert_complains(self, rule, path, text):
        self.assertTrue(list(rule(path, text)), text)

    def test_a_lower_room_that_includes_a_higher_one_is_seen(self):
        self.assert_complains(
            rules.include_complaints, "src/status/x.h", '#include "schedule/record_store.h"\n')

    def test_a_window_that_includes_another_rooms_window_is_seen(self):
        self.assert_complains(
            rules.include_complaints, "src/status/ui/x.cpp", '#include "schedule/ui/frm.h"\n')

    def test_a_windows_header_above_the_ports_is_seen(self):
        self.assert_complains(rules.include_complaints, "src/agent/x.cpp", "#include <windows.h>\n")

    def test_a_higher_room_may_include_a_lower_one(self):
        text = '#include <string>\n#include "shared/paths.h"\n'
        self.assertEqual([], list(rules.include_complaints("src/status/x.cpp", text)))

    def test_a_comment_is_no_include(self):
        text = '// #include "agent/tray.h"\n'
        self.assertEqual([], list(rules.include_complaints("src/status/x.cpp", text)))

    def test_throwing_conversions_are_seen(self):
        self.assert_complains(rules.call_complaints, "src/shared/x.cpp", "int n = std::stoi(text);")
        self.assert_complains(rules.call_complaints, "src/shared/x.cpp", "auto c = text.at(3);")

    def test_a_word_in_a_string_is_no_call(self):
        self.assertEqual(
            [], list(rules.call_complaints("src/a.cpp", 'Trace("could not catch (it)");')))

    def test_an_unfinished_place_is_seen(self):
        self.assert_complains(rules.word_complaints, "src/a.cpp", "// " + "TO" + "DO: later")

    def test_a_developers_path_is_seen(self):
        self.assert_complains(rules.word_complaints, "README.md", "see /ho" + "me/somebody/x")


if __name__ == "__main__":
    unittest.main()
