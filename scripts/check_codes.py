"""The checks of P0_Codes, the descriptions of trouble codes."""

import re
from collections import Counter
from pathlib import Path

import code_families

DESCRIBED = 4501  # so that none gets lost unseen
CODE_LINE = re.compile(r"([PBCU][0-3][0-9A-F]{3}) (\S.*)")
PLACE = re.compile(r", Bank [12]( Sensor [1-5AB]| Unit [12]| or Single Sensor)?$"
                   r"|Bank 1/Bank 2 Correlation$"
                   r"|^O2 Sensor Signals Swapped, Bank [12] Sensor [123]/Bank [12] Sensor [123]$")
RANGES = {"Cylinder": 12, "Gear": 9, "Sensor": 6, "Fan": 4, "Bank": 2}
SPELT_OUT = {"MAF", "MAP", "ECT", "IAT", "TCC", "PTO", "BARO", "KAM", "DPF", "SCR"}
SMALL_WORDS = {"of", "to", "and", "or", "the", "in", "at", "on", "by", "with", "from", "for", "during", "not", "per"}
STATES = {"on"}  # a small word, but also a state: "Stuck On"

# Rare words that differ by one letter from a frequent one, but are correct.
MEANT = {"bolster", "cause", "code", "conditions", "disabled", "electronic", "event", "gears", "late", "loss", "lower",
         "port", "pulse", "rain", "receiver", "road", "root", "sensors", "state", "step", "timer", "valves", "wear"}

# The standard's order of a component's faults.
FAULT = re.compile(r"(?P<part>.+?)(?: (?P<kind>Circuit|Too)\b)?(?:/Open| Open)?"
                   r"(?: (?P<fault>Range/Performance|Performance|Unstable|Low|High|Intermittent/Erratic|Malfunction))?"
                   r"(?: Voltage)?(?P<place>,.*| -.*|)")
LOW, HIGH = 2, 3
RANK = {None: 0, "Malfunction": 0, "Range/Performance": 1, "Performance": 1, "Unstable": 1, "Low": LOW, "High": HIGH,
        "Intermittent/Erratic": 4}
HIGH_BEFORE_LOW = {"P2288", "P2381", "P2386", "P2763"}
TAKES_TURNS = {"P004E", "P0822", "P0823"}  # between two codes of its neighbour in the alphabet
GAPS = {"P0C2C", "P0CC8", "P229F"}  # codes of a run on whose meaning too few lists agree


def check_form(lines, report):
    """{code: (line number, description)} of the lines in good form."""
    codes = {}
    previous = ""
    for number, line in enumerate(lines, 1):
        match = CODE_LINE.fullmatch(line)
        if not match:
            report.add("P0_Codes", number, "not a five-character code, a blank and a description")
            continue
        code, title = match.groups()
        if code in codes:
            report.add("P0_Codes", number, f"{code} stands twice")
        elif code < previous:
            report.add("P0_Codes", number, f"{code} after {previous}: not sorted")
        codes[code] = (number, title)
        previous = code
    if len(codes) != DESCRIBED:
        report.add("P0_Codes", len(lines), f"{len(codes)} codes instead of {DESCRIBED}")
    return codes


def check_places_and_numbers(codes, report):
    titles = {}
    for code, (number, title) in codes.items():
        if title in titles:
            report.add("P0_Codes", number, f"same description as {titles[title]}")
        titles.setdefault(title, code)
        if "Bank " in title and not PLACE.search(title):
            report.add("P0_Codes", number, "bank not given as a place behind a comma")
        for word, limit in RANGES.items():
            for value in re.findall(rf"\b{word} (\d+)\b", title):
                if not 1 <= int(value) <= limit:
                    report.add("P0_Codes", number, f"no {word} {value}")


def misspellings(word):
    """The word with a letter left out, exchanged for or followed by another ("?"), or swapped with the next."""
    for i in range(len(word)):
        yield word[:i] + word[i + 1:]
        yield f"{word[:i]}?{word[i + 1:]}"
        yield f"{word[:i + 1]}?{word[i + 1:]}"
        yield word[:i] + word[i:i + 2][::-1] + word[i + 2:]


def misspelt(counts):
    """{rare word: the frequent one that it looks like}"""
    frequent = {wrong: word for word, count in counts.items() if count > 3 and len(word) > 3
                for wrong in misspellings(word)}
    rare = [word for word, count in counts.items() if count <= 3 and len(word) > 3 and word not in MEANT]
    return {word: frequent[form] for word in rare
            for form in (word, *(f"{word[:i]}?{word[i + 1:]}" for i in range(len(word)))) if form in frequent}


def check_spelling(codes, report):
    """Checks that each word is written in one way: small words in lower case, others as in most descriptions."""
    words = {number: re.findall(r"[A-Za-z][A-Za-z0-9]+", title) for number, title in codes.values()}
    counts = Counter(word for line in words.values() for word in line)
    wrong = misspelt(Counter(word.lower() for word in counts.elements()))
    usual = {}
    for word, _ in counts.most_common():
        lower = word.lower()
        usual.setdefault(lower, lower if lower in SMALL_WORDS else word)
    for number, line in words.items():
        for word in line:
            lower = word.lower()
            if word in SPELT_OUT:
                report.add("P0_Codes", number, f"{word} is spelt out elsewhere")
            elif lower in wrong:
                report.add("P0_Codes", number, f"'{word}' looks like '{usual[wrong[lower]]}'")
            elif word != usual[lower] and not (lower in STATES and word == lower.capitalize()):
                report.add("P0_Codes", number, f"'{word}' is written '{usual[lower]}' elsewhere")
    for number, title in codes.values():
        if re.search(r"\bIntermittent(?!/Erratic)", title):
            report.add("P0_Codes", number, "'Intermittent' is written 'Intermittent/Erratic' elsewhere")
        if doubled := re.search(r"\b([A-Za-z]+) \1\b", title):
            report.add("P0_Codes", number, f"'{doubled[1]}' stands twice in a row")


def parse(title):
    """(component with its place, kind of fault, rank of the fault)"""
    match = FAULT.fullmatch(title)
    return match["part"] + match["place"], match["kind"], RANK[match["fault"]]


def check_low_before_high(codes, report):
    low = {}
    for code, (_, title) in codes.items():
        part, kind, rank = parse(title)
        if rank == LOW:
            low[part, kind] = code
    for code, (number, title) in codes.items():
        part, kind, rank = parse(title)
        if rank == HIGH and code < low.get((part, kind), "") and code not in HIGH_BEFORE_LOW:
            report.add("P0_Codes", number, f"high before low, which is {low[part, kind]}")


def check_runs(codes, report):
    """Checks that the codes of a component are consecutive, without gaps or codes of another component."""
    parts = {code: parse(title)[0] for code, (_, title) in codes.items()}
    masked = {code: re.sub(r"(?<![\w/+-])([A-Z]|\d+)(?!\w)", "#", part) for code, part in parts.items()}
    for code, part in parts.items():
        between, after = (f"{code[0]}{int(code[1:], 16) + step:04X}" for step in (1, 2))
        if parts.get(after) != part:
            continue
        if between not in codes:
            if between not in GAPS:
                report.add("P0_Codes", codes[after][0], f"{between} is missing")
        elif parts[between] != part and masked[between] == masked[code] and between not in TAKES_TURNS:
            report.add("P0_Codes", codes[between][0], f"{between} names another member than the codes around it")


def check_families(codes, report):
    for code, title in code_families.read_titles(Path(__file__).with_name("code-families.txt")).items():
        if code not in codes:
            report.add("P0_Codes", 0, f"{code} is missing, '{title}' as the rest of its family")
        elif codes[code][1] != title:
            report.add("P0_Codes", codes[code][0], f"{code} should be '{title}' as the rest of its family")


def check_modules(codes, report):
    """"Invalid Data Received from X" is numbered as "Lost Communication with X"."""
    for code, (number, title) in codes.items():
        source = code_families.lost_communication_of(code)
        if source in codes and title != codes[source][1].replace("Lost Communication with", "Invalid Data Received from"):
            report.add("P0_Codes", number, f"{code} names another module than {source}")


def check_codes(lines, report):
    codes = check_form(lines, report)
    for check in (check_places_and_numbers, check_spelling, check_low_before_high, check_runs, check_families,
                  check_modules):
        check(codes, report)
    return codes
