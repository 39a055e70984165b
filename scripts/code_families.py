"""How the standard numbers trouble codes: code-families.txt, and the codes of control modules."""

import re
import sys

FAULTS = {"c": " Circuit", "o": " Circuit/Open", "r": " Circuit Range/Performance", "l": " Circuit Low",
          "h": " Circuit High", "i": " Circuit Intermittent/Erratic"}

# "Invalid Data Received from X" lies 0x301 above "Lost Communication with X", but for the modules of the oldest codes,
# U0401 to U0442 in decimal; the places that these left free above went to others.
DISTANCE = 0x301
FIRST, LAST = 0x40B, 0x5FF
OLDEST = ("100 101 102 103 104 105 106 107 108 109 110 111 112 114 121 122 128 129 130 131 132 140 155 164 166 167 168 "
          "126 212 127 141 125 235 133 134 135 136 137 138 - 113 115").split()
SOURCES = {f"U0{401 + place}": f"U0{source}" for place, source in enumerate(OLDEST)}
SOURCES |= {"U040A": "U010F", "U0456": "U0116", "U0465": "U0117", "U0467": "U0118", "U0468": "U0119", "U0469": "U0120",
            "U0513": "U0123", "U0536": "U0124"}


def lost_communication_of(code):
    """The code of "Lost Communication" with the module that an "Invalid Data Received" code must name, or None."""
    number = int(code[1:], 16)
    counted = f"U{number - DISTANCE:04X}" if code[0] == "U" and FIRST <= number <= LAST else None
    return SOURCES.get(code, counted)


def expand_codes(text):
    """"P0201-P0203,P020A" as a list of codes."""
    result = []
    for part in text.split(","):
        first, _, last = part.partition("-")
        last = last or first
        base = 16 if re.search(r"[A-F]", first[1:] + last[1:]) else 10
        width = "04X" if base == 16 else "04d"
        for value in range(int(first[1:], base), int(last[1:], base) + 1):
            result.append(first[0] + format(value, width))
    return result


def expand_members(text):
    """"1-3", "A-C" or "1.1,1.2" as lists of parts."""
    if match := re.fullmatch(r"(\d+)-(\d+)", text):
        return [[str(n)] for n in range(int(match[1]), int(match[2]) + 1)]
    if match := re.fullmatch(r"([A-Z])-([A-Z])", text):
        return [[chr(n)] for n in range(ord(match[1]), ord(match[2]) + 1)]
    return [member.split(".") for member in text.split(",")]


def expand_titles(template, parts):
    """The template's title for a member, or one for each letter between its braces."""
    values = iter(parts)
    title = re.sub("#", lambda _: next(values), template)
    match = re.search(r" \{([corlhi]+)\}", title)
    return [title.replace(match[0], FAULTS[letter]) for letter in match[1]] if match else [title]


def read_titles(path):
    """{code: title} for every code of every family."""
    expected = {}
    for number, line in enumerate(path.read_text().splitlines(), 1):
        if not line or line.startswith("#"):
            continue
        head, *templates = line.split(" | ")
        ranges, members = head.split(" ", 1)
        titles = [title for parts in expand_members(members) for template in templates
                  for title in expand_titles(template, parts)]
        family = expand_codes(ranges)
        if len(family) != len(titles):
            sys.exit(f"{path.name}:{number}: {len(family)} codes for {len(titles)} titles")
        expected |= {code: title for code, title in zip(family, titles) if title != "-"}
    return expected
