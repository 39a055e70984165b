#!/usr/bin/python3
"""What the program prints as JSON, against docs/json, for every car; and that a recording replays.
Usage: json_test.py KESTROM VIRTUAL_CAR SOURCE_FOLDER [TEST...]"""
import contextlib
import functools
import json
import os
import subprocess
import sys
import tempfile
import time
import unittest
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import dbus.bus
import jsonschema

KESTROM, VIRTUAL_CAR, SOURCE = sys.argv[1:4]
CARS = sorted(path.stem for path in Path(SOURCE, "resources/cars").glob("*.json") if "." not in path.stem)
HOME = tempfile.TemporaryDirectory()
SURROUNDINGS = os.environ | {"HOME": HOME.name, "XDG_CONFIG_HOME": HOME.name, "XDG_DATA_HOME": HOME.name,
                             "DBUS_SYSTEM_BUS_ADDRESS": "unix:path=/nonexistent/bus"}


def kestrom(*arguments, status=0, **surroundings):
    done = subprocess.run([KESTROM, *arguments], env=SURROUNDINGS | surroundings, timeout=90,
                          stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
    assert done.returncode == status, f"{arguments} ended with {done.returncode}: {done.stderr}"
    return done.stdout


@contextlib.contextmanager
def virtual_car(*arguments):
    serial = "--pty" in arguments
    place = [] if serial else ["--port", "0"]
    with subprocess.Popen([VIRTUAL_CAR, *place, *arguments], stdout=subprocess.PIPE, text=True) as car:
        try:
            told = car.stdout.readline().strip()
            yield told.rsplit(" ", 1)[1] if serial else "127.0.0.1:" + told.rsplit(":", 1)[1]
        finally:
            car.terminate()


@functools.cache
def schema(name):
    body = json.loads(Path(SOURCE, f"docs/json/{name}.schema.json").read_text())
    jsonschema.Draft202012Validator.check_schema(body)
    return jsonschema.Draft202012Validator(body)


def fits(name, value):
    schema(name).validate(value)
    return value


def lines_fit(name, text):
    return [fits(name, json.loads(line)) for line in text.splitlines()]


def same_codes(text):
    codes = fits("codes", json.loads(text))
    del codes["read_on"]  # another time
    codes["statuses"] = [one for one in codes["statuses"] if not one.startswith("Trying: ")]  # another port
    return codes


def check_car(name):
    """Records a car, holds all that is printed against the schemas, and asks the recording again."""
    talk = {kind: str(Path(HOME.name, f"{name}.{kind}.jsonl")) for kind in ("codes", "live")}
    live = ["live", "--cycles", "20", "--json"]
    with virtual_car("--car", name, "--timing", "0.05") as address:
        told = same_codes(kestrom("--adapter", address, "--record", talk["codes"], "codes", "--json"))
        run = lines_fit("live", kestrom("--adapter", address, "--record", talk["live"], *live))
        report = kestrom("--adapter", address, "report", "--json")
        fits("report", json.loads(report))
        fits("send", json.loads(kestrom("--adapter", address, "send", "AT I", "09 02", "--json")))
    saved = Path(HOME.name, f"{name}.report.json")
    saved.write_text(report)
    assert kestrom("report", "--open", str(saved), "--json") == report, name
    for path in talk.values():
        lines_fit("recording", Path(path).read_text())
    with virtual_car("--replay", talk["codes"]) as address:
        for _ in range(2):  # it starts again
            assert same_codes(kestrom("--adapter", address, "codes", "--json")) == told, name
    with virtual_car("--replay", talk["live"], "--latency", "0") as address:
        again = lines_fit("live", kestrom("--adapter", address, *live))
    assert [one.get("values") for one in again] == [one.get("values") for one in run], name
    return len(run)


class json_test(unittest.TestCase):
    def test_every_car_fits_the_schemas_and_replays(self):
        self.assertGreater(len(CARS), 10)
        with ThreadPoolExecutor(8) as pool:  # they mostly wait
            self.assertEqual(list(pool.map(check_car, CARS)), [21] * len(CARS))

    def test_a_serial_port_tells_the_same_as_a_socket(self):
        codes, cycles = [], []
        for way in (["--latency", "0", "--speed", "0"], ["--latency", "0", "--speed", "0", "--pty"]):
            talk = str(Path(HOME.name, f"way{len(way)}.jsonl"))
            with virtual_car(*way) as address:
                codes.append(same_codes(kestrom("--adapter", address, "--record", talk, "codes", "--json")))
                run = lines_fit("live", kestrom("--adapter", address, "live", "--pids", "0C,0D,05", "--cycles", "50", "--json"))
                cycles.append([one["values"] for one in run if "values" in one])
            header = lines_fit("recording", Path(talk).read_text())[0]
            self.assertEqual(header["adapter"], "serial" if "--pty" in way else "wifi")
            del codes[-1]["statuses"]  # each way has words of its own
        self.assertEqual(codes[0], codes[1])
        self.assertEqual(cycles[0], cycles[1])
        self.assertEqual(len(cycles[0]), 50)

    def test_small_letters_are_read_as_large_ones_and_fit_the_schemas(self):
        talk, settings = Path(HOME.name, "letters.jsonl"), Path(HOME.name, "letters.conf")
        with virtual_car("--car", "hybrid", "--timing", "0.05") as address:
            kestrom("--adapter", address, "--record", str(talk), "codes")
        told = [json.loads(line) for line in talk.read_text().splitlines()]
        for entry in told:
            if "43 " in entry.get("received", ""):
                entry["received"] = entry["received"].lower()
        talk.write_text("".join(json.dumps(entry) + "\n" for entry in told))
        with virtual_car("--replay", str(talk)) as address:
            codes = same_codes(kestrom("--adapter", address, "codes", "--json"))["codes"]
        self.assertIn("P0A80", [code["code"] for code in codes])
        settings.write_text("[General]\npidsArray=0d, 0C\n")
        cycle, _ = lines_fit("live", kestrom("--demo", "--settings", str(settings), "live", "--cycles", "1", "--json"))
        self.assertEqual(list(cycle["values"]), ["0d", "0C"])

    def test_what_needs_no_car_fits_the_schemas(self):
        Path(HOME.name, "run.gol").write_text("410C1AF8,NODATA\n")
        log = str(Path(HOME.name, "run.gol"))
        for name, status, arguments in [
                ("decode", 1, ["decode", "41 0C 1A F8", "41 0D 64", "NO DATA", "--json"]),
                ("decode", 1, ["decode", "--json", "zz"]),
                ("vin", 1, ["vin", "490201000000 31\\r490202 47314A43\\r", "--json"]),
                ("vin", 1, ["--json", "vin", "NO DATA"]),
                ("mode6", 0, ["mode6", "--json", "16", "01F4"]),
                ("export", 0, ["export", log, "--json"]),
                ("export", 1, ["export", log, "--json"]),
                ("bluetooth-scan", 1, ["bluetooth-scan", "--json"]),
                ("serial-ports", 0, ["serial-ports", "--json"]),
                ("lookup", 0, ["lookup", "p0301", "--json"]),
                ("lookup", 1, ["lookup", "no", "such", "thing", "--json"]),
                ("pids", 0, ["--demo=hybrid", "pids", "--json"]),
                ("pids", 1, ["--adapter", "127.0.0.1:1", "pids", "--json"]),
                ("codes", 1, ["--adapter", "127.0.0.1:1", "codes", "--json"]),
                ("codes", 0, ["--demo", "clear", "--yes", "--json"])]:
            with self.subTest(arguments):
                fits(name, json.loads(kestrom(*arguments, status=status)))

    def test_a_run_asks_what_the_car_supports_and_no_more(self):
        supported = json.loads(kestrom("--demo=hybrid", "pids", "--json"))["parameters"]
        self.assertIn("5B", [one["pid"] for one in supported])  # told by the other unit
        cycle, _ = lines_fit("live", kestrom("--demo=hybrid", "live", "--pids=all", "--cycles=1", "--json"))
        self.assertEqual(list(cycle["values"]), [one["pid"] for one in supported if one["decoded"]])
        cycle, _ = lines_fit("live", kestrom("--demo=hybrid", "live", "--pids=78,5c,0D", "--cycles=1", "--json"))
        self.assertEqual(list(cycle["values"]), ["5C", "0D"])
        kestrom("--demo=hybrid", "live", "--pids=78", "--cycles=1", status=1)

    def test_devices_of_a_bluetooth_service_fit_the_schema(self):
        daemon = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address"],
                                  stdout=subprocess.PIPE, text=True)
        bus = daemon.stdout.readline().strip()
        mock = subprocess.Popen([sys.executable, "-m", "dbusmock", "--system", "--template", "bluez5"],
                                env=os.environ | {"DBUS_SYSTEM_BUS_ADDRESS": bus}, stdout=subprocess.DEVNULL)
        try:
            connection = dbus.bus.BusConnection(bus)
            while not connection.name_has_owner("org.bluez"):
                time.sleep(0.05)
            bluez = dbus.Interface(connection.get_object("org.bluez", "/"), "org.bluez.Mock")
            bluez.AddAdapter("hci0", "desk")
            bluez.AddDevice("hci0", "00:1D:A5:68:98:8B", 'OBD"II')
            devices = json.loads(kestrom("bluetooth-scan", "--json", "--timeout", "2", DBUS_SYSTEM_BUS_ADDRESS=bus))
            self.assertEqual(fits("bluetooth-scan", devices)["devices"][0]["name"], 'OBD"II')
        finally:
            for process in (mock, daemon):
                process.kill()
                process.wait()
                if process.stdout:
                    process.stdout.close()


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[4:]])
