"""The rules of the house, as functions over source text. house_test.py applies them to the tree.

Each rule takes a path relative to the repository and the text of that file, and yields complaints.
"""

import re

# Which rooms (folders of src/) a room may include, besides itself.
_LOWER = ["platform", "shared", "status", "schedule", "support"]
_DECISIONS_AND_FORMS = _LOWER + ["forms"]
_ALL_ABOVE_PORTS = _DECISIONS_AND_FORMS + ["status/ui", "schedule/ui", "support/ui", "agent"]

ALLOWED = {
    "platform": [],
    "platform/memory": ["platform"],
    "platform/win32": ["platform"],
    "forms": ["platform"],
    "forms/memory": ["platform", "platform/memory", "forms"],
    "forms/win32": ["platform", "platform/win32", "forms"],
    "shared": ["platform"],
    "status": ["platform", "shared"],
    "schedule": ["platform", "shared", "status"],
    "support": ["platform", "shared", "status", "schedule"],
    "status/ui": _DECISIONS_AND_FORMS,
    "schedule/ui": _DECISIONS_AND_FORMS,
    "support/ui": _DECISIONS_AND_FORMS,
    "agent": _ALL_ABOVE_PORTS,
    "app": _ALL_ABOVE_PORTS + ["platform/win32", "forms/win32"],
}

# Rooms that may see the headers of Windows (and of C).
WINDOWS_ROOMS = {"platform/win32", "forms/win32", "app"}

_INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)

# Calls that end the program on bad data, and what exceptions are written with.
_FORBIDDEN_CALLS = re.compile(
    r"""std::sto(?:i|l|ll|ul|ull|f|d|ld)\b
      | \.at\(
      | std::filesystem\b | std::regex\b
      | \bthrow\b | \btry\s*\{ | \bcatch\s*\(
      | \bdynamic_cast\b | \btypeid\b""",
    re.VERBOSE,
)

_UNFINISHED = re.compile(r"\b(?:TODO|FIXME|XXX|HACK)\b")
_DEVELOPERS_PATH = re.compile(r"(?<![\w.$}\"'])/(?:home|root|work|Users|mnt)/\w")


def room_of(path):
    """The room of a file below src/: the longest known folder that it lies in."""
    parts = path.split("/")[1:-1]
    while parts:
        room = "/".join(parts)
        if room in ALLOWED:
            return room
        parts.pop()
    return None


def _without_comments(text):
    text = re.sub(r"/\*.*?\*/", "", text, flags=re.DOTALL)
    return re.sub(r"//[^\n]*", "", text)


def _without_strings(text):
    return re.sub(r'"(?:\\.|[^"\\\n])*"', '""', text)


def include_complaints(path, text):
    room = room_of(path)
    if room is None:
        yield f"{path}: lies in no room of the house"
        return
    for mark, name in _INCLUDE.findall(_without_comments(text)):
        if mark == "<":
            if "." in name and room not in WINDOWS_ROOMS:
                yield f"{path}: <{name}> is no header of the C++ standard library"
            continue
        target = room_of("src/" + name)
        if target is None:
            yield f'{path}: "{name}" names no room: write the path from src/'
        elif target != room and target not in ALLOWED[room]:
            yield f"{path}: {room} must not know {target} ({name})"


def call_complaints(path, text):
    for match in _FORBIDDEN_CALLS.finditer(_without_strings(_without_comments(text))):
        yield f"{path}: '{match.group(0)}' can end the program or needs exceptions"


def word_complaints(path, text):
    for rule, why in (
        (_UNFINISHED, "marks unfinished work"),
        (_DEVELOPERS_PATH, "is a path of somebody's machine"),
    ):
        for match in rule.finditer(text):
            line = text.count("\n", 0, match.start()) + 1
            yield f"{path}:{line}: '{match.group(0)}' {why}"


def pragma_complaints(path, text):
    if path.endswith(".h") and "#pragma once" not in text:
        yield f"{path}: a header without #pragma once"
