"""check-tables must find each of these faults, each made alone in a copy of the shipped tables."""

import shutil
import subprocess
import sys
import tempfile
from importlib.machinery import SourceFileLoader
from importlib.util import module_from_spec, spec_from_loader
from pathlib import Path

sys.dont_write_bytecode = True
CHECKER, TABLES = Path(sys.argv[1]), Path(sys.argv[2])
loader = SourceFileLoader("check_tables", str(CHECKER))
checker = module_from_spec(spec_from_loader(loader.name, loader))
loader.exec_module(checker)

# (table, text to replace, replacement, what the checker must say); text None stands for the file's end.
FAULTS = [
    ("P0_Codes", "P0301 ", "P0300 ", "P0300 stands twice"),
    ("P0_Codes", "P0303 ", "P00C0 ", "not sorted"),
    ("P0_Codes", "P0301 ", "P301 ", "not a five-character code"),
    ("P0_Codes", "P0301 ", "p0301 ", "not a five-character code"),
    ("P0_Codes", "P0301 Cylinder 1 Misfire Detected", "P0301", "not a five-character code"),
    ("P0_Codes", "\nP0301", "\n\nP0301", "empty line"),
    ("P0_Codes", "\nP0301", "\r\nP0301", "carriage return"),
    ("P0_Codes", "\nP0301", " \nP0301", "blanks at an end"),
    ("P0_Codes", "1 Misfire", "1\tMisfire", "not plain printable text"),
    ("P0_Codes", "1 Misfire", "1 \N{DEGREE SIGN}Misfire", "not plain printable text"),
    ("P0_Codes", None, "\n", "line end after the last line"),
    ("P0_Codes", "P0304 Cylinder 4", "P0304 Cylinder 14", "no Cylinder 14"),
    ("P0_Codes", "P0305 Cylinder 5 Misfire", "P0305 Cylinder 6 Misfire", "P0305 should be"),
    ("P0_Codes", "P0137 O2 Sensor Circuit Low Voltage", "P0137 O2 Sensor Circuit Low", "P0137 should be"),
    ("P0_Codes", "P0733 Gear 3", "P0733 Gear 4", "P0733 should be"),
    ("P0_Codes", "Regulator 1 Control Circuit High", "Regulator 1 Control Circuit Low", "same description as P0091"),
    ("P0_Codes", "P0172 System Too Rich, Bank 1", "P0172 System Too Rich Bank 1", "as a place behind a comma"),
    ("P0_Codes", "Fuel Rail/System Pressure Too Low", "Fuel rail/System Pressure Too Low", "'rail' is written 'Rail'"),
    ("P0_Codes", "P2226 Barometric Pressure", "P2226 BARO", "BARO is spelt out"),
    ("P0_Codes", "Received from Gateway A", "Received from Gateway B", "another module than U0146"),
    ("P0_Codes", "P0AD4 Hybrid/EV Battery Pack Air Flow Insufficient",
     "P0AD4 Hybrid/EV Battery Pack Cooling Fan 4 Control Circuit/Open", "P0AD4 should be"),
    ("P0_Codes", "P20ED Selective Catalytic Reduction NOx Pre-Catalyst", "P20ED Selective Catalytic Reduction NOx Catalyst",
     "P20ED should be"),
    ("P0_Codes", "B0073 Second Row Left", "B0073 Passenger", "B0073 should be"),
    ("P0_Codes", "\nP0304 Cylinder 4 Misfire Detected", "", "P0304 is missing"),
    ("P0_Codes", "\nP2555 Throttle/Fuel Inhibit Circuit High", "", "codes instead of"),
    ("P0_Codes", "\nP2554 Throttle/Fuel Inhibit Circuit Low", "", "P2554 is missing"),
    ("P0_Codes", "P0563 System Voltage High", "P0559 System Voltage High", "high before low, which is P0562"),
    ("P0_Codes", "P2601 Coolant Pump A", "P2601 Coolant Pump C", "P2601 names another member"),
    ("P0_Codes", "P0088 Fuel Rail", "P0088 Fuel Rial", "'Rial' looks like 'Rail'"),
    ("P0_Codes", "P0088 Fuel Rail", "P0088 Fuel Fuel Rail", "'Fuel' stands twice in a row"),
    ("P0_Codes", "P0323 Ignition/Distributor Engine Speed Input Circuit Intermittent/Erratic",
     "P0323 Ignition/Distributor Engine Speed Input Circuit Intermittent", "'Intermittent' is written"),
    ("P0_Codes", "U0465 Invalid Data Received from Power Take-Off", "U0465 Invalid Data Received from HVAC",
     "another module than U0117"),
    ("FIELD_PIDS_0", "\n1F Time since Engine Start", "", "31 lines instead of 32"),
    ("FIELD_PIDS_1", "\n2F ", "\n2f ", "does not start with PID 2F"),
    ("FIELD_PIDS_2", "46 Ambient", "46 " + "Very " * 9 + "Ambient", "longer than 45"),
    ("FIELD_PIDS_2", "46 Ambient Air", "46 Ambient, Air", "a comma in a name"),
    ("readinessLabels", "Misfire\n", "", "10 lines instead of 11"),
    ("OBD_MODES", "\nReserved", "", "lines instead of 34"),
    ("OBD_FUEL_TYPE", None, "\nKerosene", "24 lines instead of 23"),
    ("OBDMID_CAN", "\n20|", "\n02|", "identifier not above"),
    ("OBDMID_CAN", "\n20|", "\n20 ", "not two hex digits"),
    ("TID_CAN", "\nFF|Reserved", "", "does not run from 00 to FF"),
]


def problems_with(folder, table, text, replacement):
    path = folder / f"{table}.txt"
    original = path.read_bytes()
    fault = replacement.encode()
    if text is None:
        path.write_bytes(original + fault)
    elif text.encode() in original:
        path.write_bytes(original.replace(text.encode(), fault, 1))
    else:
        sys.exit(f"{table}: '{text}' is not in the table any more")
    problems = checker.check_all(folder)[1]
    path.write_bytes(original)
    return problems


def main():
    missed = []
    with tempfile.TemporaryDirectory() as scratch:
        folder = Path(scratch) / "tables"
        shutil.copytree(TABLES, folder)
        for table, text, replacement, message in FAULTS:
            problems = problems_with(folder, table, text, replacement)
            if not any(message in problem for problem in problems):
                missed.append(f"{table}: {text!r} as {replacement!r} gives {problems}")
        for table in TABLES.glob("*.txt"):
            (folder / table.name).unlink()
            if not any(f"{table.name}:0: cannot be read" in problem for problem in checker.check_all(folder)[1]):
                missed.append(f"{table.name} missing")
            shutil.copy(table, folder)
        (folder / "TID_CAN.txt").write_text("")
        if subprocess.run([sys.executable, CHECKER, "--tables", folder], capture_output=True, check=False).returncode != 1:
            missed.append("the exit code of the command")
    print(*missed, f"{len(FAULTS)} faults tried, {len(missed)} not found", sep="\n")
    return 1 if missed else 0


sys.exit(main())
