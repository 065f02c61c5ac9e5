#!/usr/bin/env python3
"""The bundle rule of tools/check_bundle.py over small bundles of hand-built Mach-O files, and
its reading of a real compiler's output where clang can target macOS."""

import io
import os
import plistlib
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "..", "tools"))
import check_bundle  # noqa: E402

LC_LOAD_DYLIB, LC_LOAD_WEAK_DYLIB, LC_RPATH = 0x0C, 0x80000018, 0x8000001C


def encoded(version):
    major, minor = (int(part) for part in version.split("."))
    return major << 16 | minor << 8


def padded(command):
    return command + b"\0" * (-len(command) % 8)


def dylib(path, cmd=LC_LOAD_DYLIB):
    name = padded(path.encode() + b"\0")
    return struct.pack("<IIIIII", cmd, 24 + len(name), 24, 0, 0x10000, 0x10000) + name


def rpath(path):
    command = padded(struct.pack("<III", LC_RPATH, 0, 12) + path.encode() + b"\0")
    return struct.pack("<II", LC_RPATH, len(command)) + command[8:]


def build_version(version):
    return struct.pack("<IIIIII", 0x32, 24, 1, encoded(version), encoded("14.2"), 0)


def version_min(version):
    return struct.pack("<IIII", 0x24, 16, encoded(version), encoded("10.15"))


def macho(*commands, filetype=6):
    body = b"".join(commands)
    return struct.pack("<IiiIIIII", 0xFEEDFACF, 0x0100000C, 0, filetype, len(commands), len(body), 0, 0) + body


def universal(*slices):
    header = struct.pack(">II", 0xCAFEBABE, len(slices))
    offset, table, payload = 4096, b"", b""
    for data in slices:
        table += struct.pack(">iiIII", 0x0100000C, 0, offset, len(data), 12)
        payload += data + b"\0" * (-len(data) % 4096)
        offset += len(data) + (-len(data) % 4096)
    return (header + table).ljust(4096, b"\0") + payload


QT = "Contents/Frameworks/QtCore.framework/Versions/A/QtCore"
EXE = "Contents/MacOS/Ferrow"
GOOD_EXE = macho(build_version("13.0"), dylib("@rpath/QtCore.framework/Versions/A/QtCore"),
                 dylib("/System/Library/Frameworks/AppKit.framework/Versions/C/AppKit"),
                 dylib("/usr/lib/libc++.1.dylib"), rpath("@executable_path/../Frameworks"), filetype=2)

# name: (files, declare, problems expected (substrings), declared afterwards)
CASES = {
    "self-contained": ({EXE: GOOD_EXE, QT: macho(build_version("13.0"))}, False, [], "13.0"),
    "framework built for a newer system": ({EXE: GOOD_EXE, QT: macho(build_version("14.0"))}, False,
                                           [f"{QT}: needs macOS 14.0, the bundle declares 13.0"], "13.0"),
    "declared up to the newest file": ({EXE: GOOD_EXE, QT: macho(build_version("14.0"))}, True, [], "14.0"),
    "older load command": ({EXE: GOOD_EXE, QT: macho(version_min("15.1"))}, True, [], "15.1"),
    "one slice of a universal file": ({EXE: GOOD_EXE, QT: universal(macho(build_version("13.0")), macho(build_version("14.2")))},
                                      False, ["needs macOS 14.2"], "13.0"),
    "a library from Homebrew": ({EXE: GOOD_EXE, QT: macho(build_version("13.0"), dylib(
        "/opt/homebrew/opt/qtbase/lib/QtDBus.framework/Versions/A/QtDBus", LC_LOAD_WEAK_DYLIB))}, False,
        [f"{QT}: loads /opt/homebrew/opt/qtbase/lib/QtDBus.framework/Versions/A/QtDBus, outside the bundle"], "13.0"),
    "a run path into Homebrew": ({EXE: GOOD_EXE, QT: macho(build_version("13.0"), rpath("/opt/homebrew/lib"))}, False,
                                 ["run path /opt/homebrew/lib lies outside"], "13.0"),
    "a framework the bundle lacks": ({EXE: GOOD_EXE}, False, ["@rpath/QtCore.framework/Versions/A/QtCore, found through no run path"],
                                     "13.0"),
    "a loader path out of the bundle": ({EXE: GOOD_EXE, QT: macho(build_version("13.0"), dylib("@loader_path/../../../../../../lib/x.dylib"))},
                                        False, ["outside the bundle and the system"], "13.0"),
    "other files are not read": ({EXE: GOOD_EXE, QT: macho(build_version("13.0")), "Contents/Resources/qt.conf": b"[Paths]\n",
                                  "Contents/Resources/Some.class": b"\xca\xfe\xba\xbe\x00\x00\x00\x41" + b"\0" * 64,
                                  "Contents/Resources/broken": b"\xcf\xfa\xed\xfe\xff\xff"}, False, [], "13.0"),
}


class CheckBundleTest(unittest.TestCase):
    def make_bundle(self, files, declared="13.0"):
        root = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, root)
        bundle = os.path.join(root, "Ferrow.app")
        os.makedirs(os.path.join(bundle, "Contents"))
        with open(os.path.join(bundle, "Contents", "Info.plist"), "wb") as handle:
            plistlib.dump({"CFBundleExecutable": "Ferrow", "LSMinimumSystemVersion": declared}, handle)
        for relative, data in files.items():
            path = os.path.join(bundle, relative)
            os.makedirs(os.path.dirname(path), exist_ok=True)
            with open(path, "wb") as handle:
                handle.write(data)
        return bundle

    def test_rules(self):
        for name, (files, declare, expected, declared_after) in CASES.items():
            with self.subTest(name):
                bundle = self.make_bundle(files)
                problems = check_bundle.check_bundle(bundle, declare, out=io.StringIO())
                self.assertEqual(len(problems), len(expected), problems)
                for problem, text in zip(problems, expected):
                    self.assertIn(text, problem)
                with open(os.path.join(bundle, "Contents", "Info.plist"), "rb") as handle:
                    self.assertEqual(plistlib.load(handle)["LSMinimumSystemVersion"], declared_after)

    def test_reads_a_real_compilers_minimum(self):
        clang = shutil.which("clang")
        if not clang:
            self.skipTest("no clang")
        folder = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, folder)
        source, output = os.path.join(folder, "f.c"), os.path.join(folder, "f.o")
        with open(source, "w") as handle:
            handle.write("int f(void) { return 1; }\n")
        if subprocess.run([clang, "-target", "arm64-apple-macos13.4", "-c", source, "-o", output],
                          capture_output=True).returncode != 0:
            self.skipTest("clang cannot target macOS here")
        with open(output, "rb") as handle:
            slices = check_bundle.parse_macho(handle.read())
        self.assertEqual([macho.minimum for macho in slices], [(13, 4, 0)])


if __name__ == "__main__":
    result = unittest.main(exit=False, verbosity=1).result
    failed = len(result.failures) + len(result.errors)
    print(f"{result.testsRun - failed - len(result.skipped)} passed, {failed} failed, {len(result.skipped)} skipped")
    sys.exit(1 if failed else 0)
