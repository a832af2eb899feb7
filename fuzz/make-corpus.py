#!/usr/bin/env python3
"""Writes the inputs sample-* of fuzz/corpus/ from the sample project and examples/; other inputs there stay.

Usage: fuzz/make-corpus.py [PTN]      PTN: the authoring tool, by default build-sanitize/ptn
"""
import os, struct, subprocess, sys, tempfile, zlib
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
CORPUS = ROOT / "fuzz" / "corpus"
HEADER = 466  # bytes, the two counts 12 before its end
RECORD = 136


def put(target, name, content):
    folder = CORPUS / target
    folder.mkdir(parents=True, exist_ok=True)
    (folder / ("sample-" + name)).write_bytes(content.encode() if isinstance(content, str) else content)


def pack(files):
    """Files of a folder as one input, see fuzz/Target.h."""
    return b"".join(b"@@@ " + os.fsencode(name) + b"\n" + content + b"\n" for name, content in files)


def excerpt(pattern, each):
    """A pattern with the first items of each type only."""
    count, text_size = struct.unpack_from("<ii", pattern, HEADER - 12)
    texts = pattern[HEADER + count * RECORD:].split(b"\0")
    seen = {}
    records, kept = b"", b""
    for i in range(count):
        record = pattern[HEADER + i * RECORD:HEADER + (i + 1) * RECORD]
        kind = record[:4]
        seen[kind] = seen.get(kind, 0) + 1
        if seen[kind] <= each:
            records += record
            kept += b"".join(text + b"\0" for text in texts[5 * i:5 * i + 5])
    head = pattern[:HEADER - 12] + struct.pack("<ii", len(records) // RECORD, len(kept)) + pattern[HEADER - 4:HEADER]
    return head + records + kept


def png(width, height):
    def chunk(kind, content):
        return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))
    rows = b"".join(b"\0" + bytes((x * y) % 256 for x in range(width * 3)) for y in range(height))
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)) +
            chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b""))


def bmp(side):
    row = bytes(range(side * 3)) + b"\0" * (-side * 3 % 4)
    return (struct.pack("<2sIHHI", b"BM", 54 + len(row) * side, 0, 0, 54) +
            struct.pack("<IiiHHIIiiII", 40, side, side, 1, 24, 0, len(row) * side, 0, 0, 0, 0) + row * side)


PICTURES = {
    "rgb.png": png(8, 8),
    "mark.png": png(32, 32),
    "rgb.bmp": bmp(5),
    "dot.gif": bytes.fromhex("47494638396101000100800000000000ffffff21f90401000000002c00000000010001000002024401003b"),
    "x.xpm": b'/* XPM */\nstatic char* x[] = {\n"3 2 2 1",\n"X c #FF0000",\n". c None",\n"X.X",\n".X."};\n',
    "x.xbm": b"#define x_width 8\n#define x_height 2\nstatic char x_bits[] = { 0xFF, 0x81 };\n",
    "x.ppm": b"P6\n2 2\n255\n" + bytes(range(12)),
    "x.pgm": b"P2\n2 2\n255\n0 10 20 255\n",
}

MODBUS = """plc:
  modbus: tcp://localhost:502
  period: 500 ms
  points:
    - { data: A, holding: 100, type: float32, order: CDAB, scale: 0.1 }
    - { data: A+1, coil: 3, write: true }
    - { data: A+2, input: 7, bits: 2-5, count: 3 }
broker:
  mqtt: mqtt://localhost
  points:
    - { data: A+10, topic: plant/a, json: /value/0 }
    - { data: B, topic: plant/b, part: text }
"""
SIMULATE = """tanks:
  simulate:
  period: 200 ms
  points:
    - { data: A, wave: sine, from: -5, to: 5, period: 3 s }
    - { data: A+1, wave: steps, steps: [1, 2, 3], times: [0, 1, 2] }
    - { data: A+2, wave: follow, of: A, rate: 2, replay: steps.csv }
    - { data: A+3, wave: flow, by: { A: 1, A+1: -0.5 } }
server:
  socket: unix:panel.sock
"""

BASE = "codes: { CLOCK: 7, SYSTEM: 92, A: 5, B: 3 }\ncolors: { a: '#000000', b: { no: 50, rgb: '#FF8000' } }\n"
SMALL_SOURCES = {
    "tables": [("project.yaml", BASE +
                "messages: { m: [one, two], n: { text: x, data: A+1 } }\n"
                "limits: [{ data: A, count: 3, minimum: 0, maximum: 5, below: m, above: n }]\n"
                "flags: { A: 1 }\nfonts: { small: '-*-fixed-medium-r-normal--14-*' }\n"
                "profile: { LOG: { LOGSIZE: 10 } }\nedition: 2\n"),
               ("screens/a.yaml", "name: a\n")],
    "items": [("project.yaml", BASE + "styles: { s: { color: b } }\n"
               "marks: { m: { no: 100, art: \"X.X\\n.X.\" } }\n"),
              ("screens/a.yaml", "name: a\nwindow: { size: [300, 200] }\nitems:\n"
               "  - { type: line, rect: [1, 1, 9, 1], style: s, repeat: { count: [3, 2], step: [4, 4] } }\n"
               "  - numeric: { at: [10, 20], data: A+1, width: 5, decimals: 1 }\n"
               "  - button: { at: [50, 50], size: [80, 30], text: [x, y], action: open-child-1, pattern: b }\n"
               "  - scroll-bar: { rect: [100, 0, 120, 90], data: B }\n"),
              ("screens/b.yaml", "name: b\ngroups: { g: { parameters: [x], items: "
               "[{ mark: { at: [5, 5], mark: m, data: $x } }] } }\nitems: [{ use: g, x: A, at: [1, 1] }, "
               "{ grid: { columns: 2, step: [20, 9] }, items: [{ text: { at: [0, 0], text: t } }, { check: { at: [0, 0], text: c, data: B+2 } }] }]\n")],
    "links": [("project.yaml", BASE + "links:\n" + "".join("  " + line + "\n" for line in SIMULATE.splitlines())),
              ("steps.csv", "0,1\n1.5,2\n"), ("screens/a.yaml", "name: a\n")],
}


def build(ptn, source, work):
    subprocess.run([ptn, "build", "-q", source, work / "ProjPath"], check=True)
    for profile in work.glob("*.ini"):  # names the folder
        profile.write_bytes(profile.read_bytes().replace(os.fsencode(work), b"/plant"))
    return work / "ProjPath"


def tables(made):
    put("codes", "table", (made / "PtrnCode").read_bytes())
    put("codes", "rows", struct.pack("<22siii22siii", b"A", 5, 1, 0, b"B", 3, 6, 0))
    put("codes", "wrong", struct.pack("<22siii22siii", b"A", 5, -7, 3, b"A" * 22, 2 ** 31 - 1, 2 ** 31 - 1, 0))
    put("flags", "few", b"\0\1\0\1\1\0\1\0\1")
    put("flags", "long", b"\1" * 40)
    put("colors", "table", (made / "PtrnColr").read_bytes())
    put("marks", "stripes", b"\5" + b"\x55" * 1500)
    put("marks", "short", b"\0" + b"\x55" * 30)
    put("wiring", "table", (made / "Haisenhyo").read_bytes()[:138 + 108 * 6])
    put("wiring", "two", (made / "Haisenhyo").read_bytes()[:134] + struct.pack("<i", 2) + b"x" * 216)
    put("messages", "table",
        "[MESGDATA]\nMESG1=A,1,one,two,three\nMESG2=,0,text ; comment\nMESG500=B,2,\u3042,b,c\n".encode("euc-jp"))
    put("limits", "table", "[LIMTDATA]\nLIMT1=A,4,0,3F80,4120,1,2\nLIMT2=B,1,1,C120,4120,0,500\n")


def profiles(profile):
    put("profile-read", "panel", profile)
    put("profile-read", "twice", "[A]\nB=1,2;c\nB=2\n[A]\nC=" + "x" * 300 + "\n[B\n=5\n")
    put("profile-write", "steps",
        b"[A]\nB=1\n\0\2A\0B\0new\0\1A\0C\0\5\0\0\0\7\0\0\0\0A\0B\0\3D\0E\0x y\0")
    put("profile-write", "empty", b"\0\2A\0B\0new\0\2A\0B\0\0\2A\0C\0longer value\0")
    put("profile-write", "whole", profile + b"\0\2FONT\0LANGUAGE\x002\0\0LOG\0LOGSIZE\0")


def sources(name, folder, names):
    put("sources", name, pack((each, (folder / each).read_bytes()) for each in names))


def main():
    ptn = Path(sys.argv[1] if len(sys.argv) > 1 else ROOT / "build-sanitize" / "ptn").resolve()
    for old in CORPUS.glob("*/sample-*"):
        old.unlink()
    with tempfile.TemporaryDirectory() as name:
        work = Path(name)
        made = build(ptn, ROOT / "project", work / "sample")
        station = build(ptn, ROOT / "examples" / "pump-station", work / "station")
        patterns = sorted(os.fsencode(made) + b"/" + each for each in os.listdir(os.fsencode(made))
                          if each.endswith(b".ptn"))
        for i, path in enumerate(patterns):
            with open(path, "rb") as file:
                content = excerpt(file.read(), 2)
            put("pattern", str(i), content)
            put("drawing", str(i), content)
            if i < 3:
                put("header", str(i), content[:HEADER])
        tables(made)
        profile = (work / "sample" / "panel.ini").read_bytes()
        profiles(profile)
        for name, content in PICTURES.items():
            put("bitmaps", name, content)
        put("state", "example", (ROOT / "project" / "example.state").read_bytes())
        put("state", "cells", "clock: 2025-03-02 09:05:07\ncells:\n  A: [1, { value: 2.5, text: x, color: 3,"
            " blink: yes, disabled: no, hidden: 0 }]\n  B+1: text\n  7: 1e3\n")
        put("links", "station", (station / "PtrnLink").read_bytes())
        put("link-sources", "modbus", pack([("links.yaml", MODBUS.encode())]))
        put("link-sources", "simulate", pack([("links.yaml", SIMULATE.encode()), ("steps.csv", b"0,1\n1.5,2\n")]))
        sources("station", ROOT / "examples" / "pump-station",
                ["project.yaml", "links.yaml", "look.yaml", "screens/station.yaml", "screens/stop.yaml"])
        for name, files in SMALL_SOURCES.items():
            put("sources", name, pack((each, content.encode()) for each, content in files))
        codes = (station / "PtrnCode").read_bytes()
        put("dump", "station", pack([
            ("panel.ini", (work / "station" / "pump-station.ini").read_bytes()
             if (work / "station" / "pump-station.ini").exists() else profile),
            ("PtrnCode", codes), ("PtrnColr", (station / "PtrnColr").read_bytes()),
            ("PtrnLink", (station / "PtrnLink").read_bytes()),
            ("Station.ptn", excerpt((station / "Station.ptn").read_bytes(), 2)),
            ("Stop.ptn", (station / "Stop.ptn").read_bytes())]))
        put("dump", "tables", pack([
            ("panel.ini", profile), ("PtrnCode", struct.pack("<22siii22siii", b"A", 5, 1, 0, b"B", 3, 6, 0)),
            ("PtrnFlag", b"\0\1\0\1\1\0\1\0\1"), ("Haisenhyo", (made / "Haisenhyo").read_bytes()[:138 + 216]),
            ("MesgData.prf", b"[MESGDATA]\nMESG1=A,1,one,two,three\n"),
            ("LimtData.prf", b"[LIMTDATA]\nLIMT1=A,4,0,3F80,4120,1,2\n"),
            ("Bitmap/x.png", PICTURES["rgb.png"]), ("a.ptn", (station / "Stop.ptn").read_bytes())]))


main()
