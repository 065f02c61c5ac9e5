#!/usr/bin/env python3
"""Checks that a macOS application bundle starts on the system it declares, on a Mac without
Homebrew.

Every Mach-O file under Contents/ (each slice of a universal file) must
- need no newer macOS than the bundle's LSMinimumSystemVersion (from LC_BUILD_VERSION or
  LC_VERSION_MIN_MACOSX), and
- load libraries only from inside the bundle (@executable_path, @loader_path, or @rpath through
  run paths that stay inside it, each found there) or from the system (/System/Library, /usr/lib).

With --declare, LSMinimumSystemVersion is first raised to the highest minimum found, since
copied frameworks are built for the system of the machine that built them.

Usage: check_bundle.py [--declare] App.app   (exit 1 when a file breaks a rule, 2 on bad use)
"""

import os
import plistlib
import struct
import sys

LC_REQ_DYLD = 0x80000000
LOAD_COMMANDS = {0x0C, 0x18 | LC_REQ_DYLD, 0x1F | LC_REQ_DYLD, 0x20, 0x23 | LC_REQ_DYLD}  # load, weak, reexport, lazy, upward
LC_RPATH = 0x1C | LC_REQ_DYLD
LC_VERSION_MIN_MACOSX = 0x24
LC_BUILD_VERSION = 0x32
PLATFORM_MACOS = 1
SYSTEM_PREFIXES = ("/System/Library/", "/usr/lib/")
MAX_LOAD_COMMANDS = 4096


class MachO:
    """What one slice of a Mach-O file says: its minimum system, the libraries it loads, its run paths."""

    def __init__(self):
        self.minimum = None  # (major, minor, patch)
        self.loads = []
        self.rpaths = []


def version_of(encoded):
    return (encoded >> 16, (encoded >> 8) & 0xFF, encoded & 0xFF)


def version_text(version):
    major, minor, patch = version
    return f"{major}.{minor}.{patch}" if patch else f"{major}.{minor}"


def parse_version_text(text):
    parts = [int(part) for part in str(text).split(".")]
    return tuple((parts + [0, 0])[:3])


def c_string(data, start, end):
    text = data[start:end]
    return text.split(b"\0", 1)[0].decode("utf-8", "replace")


def parse_slice(data, offset):
    magic = data[offset:offset + 4]
    if magic == b"\xcf\xfa\xed\xfe":
        header_size = 32
    elif magic == b"\xce\xfa\xed\xfe":
        header_size = 28
    else:
        return None
    if offset + header_size > len(data):
        return None
    ncmds, sizeofcmds = struct.unpack_from("<II", data, offset + 16)
    result = MachO()
    position = offset + header_size
    end = min(position + sizeofcmds, len(data))
    for _ in range(min(ncmds, MAX_LOAD_COMMANDS)):
        if position + 8 > end:
            break
        cmd, cmdsize = struct.unpack_from("<II", data, position)
        if cmdsize < 8 or position + cmdsize > end:
            break
        if cmd in LOAD_COMMANDS or cmd == LC_RPATH:
            (name_offset,) = struct.unpack_from("<I", data, position + 8)
            text = c_string(data, position + name_offset, position + cmdsize)
            (result.loads if cmd in LOAD_COMMANDS else result.rpaths).append(text)
        elif cmd == LC_BUILD_VERSION:
            platform, minos = struct.unpack_from("<II", data, position + 8)
            if platform == PLATFORM_MACOS:
                result.minimum = version_of(minos)
        elif cmd == LC_VERSION_MIN_MACOSX:
            (version,) = struct.unpack_from("<I", data, position + 8)
            result.minimum = version_of(version)
        position += cmdsize
    return result


def parse_macho(data):
    """Every slice of a Mach-O file, or None for any other file."""
    magic = data[:4]
    if magic in (b"\xca\xfe\xba\xbe", b"\xca\xfe\xba\xbf"):
        wide = magic == b"\xca\xfe\xba\xbf"
        (count,) = struct.unpack_from(">I", data, 4)
        if count == 0 or count > 32:  # a Java class file shares the magic; its version is far larger
            return None
        slices = []
        for index in range(count):
            if wide:
                _, _, offset, _, _, _ = struct.unpack_from(">iiQQII", data, 8 + 32 * index)
            else:
                _, _, offset, _, _ = struct.unpack_from(">iiIII", data, 8 + 20 * index)
            parsed = parse_slice(data, offset)
            if parsed:
                slices.append(parsed)
        return slices or None
    parsed = parse_slice(data, 0)
    return [parsed] if parsed else None


def resolve(path, file_path, executable_dir):
    if path.startswith("@executable_path/"):
        return os.path.normpath(os.path.join(executable_dir, path[len("@executable_path/"):]))
    if path.startswith("@loader_path/"):
        return os.path.normpath(os.path.join(os.path.dirname(file_path), path[len("@loader_path/"):]))
    return None


def inside(path, root):
    return os.path.commonpath([os.path.realpath(path), root]) == root


def load_problems(macho, file_path, bundle, executable_dir):
    problems = []
    rpath_dirs = []
    for rpath in macho.rpaths:
        target = resolve(rpath, file_path, executable_dir)
        if target and inside(target, bundle):
            rpath_dirs.append(target)
        elif not rpath.startswith(SYSTEM_PREFIXES):
            problems.append(f"run path {rpath} lies outside the bundle and the system")
    for load in macho.loads:
        if load.startswith(SYSTEM_PREFIXES):
            continue
        if load.startswith("@rpath/"):
            rest = load[len("@rpath/"):]
            if not any(os.path.exists(os.path.join(directory, rest)) for directory in rpath_dirs):
                problems.append(f"loads {load}, found through no run path inside the bundle")
            continue
        target = resolve(load, file_path, executable_dir)
        if target is None or not inside(target, bundle):
            problems.append(f"loads {load}, outside the bundle and the system")
        elif not os.path.exists(target):
            problems.append(f"loads {load}, which the bundle lacks")
    return problems


def check_bundle(bundle, declare=False, out=sys.stdout):
    """Returns the list of problems; prints what it found."""
    bundle = os.path.realpath(bundle)
    contents = os.path.join(bundle, "Contents")
    info_path = os.path.join(contents, "Info.plist")
    with open(info_path, "rb") as handle:
        info = plistlib.load(handle)
    declared = parse_version_text(info.get("LSMinimumSystemVersion", "10.0"))
    executable_dir = os.path.join(contents, "MacOS")

    problems, minimums, files = [], {}, 0
    for directory, _, names in os.walk(contents):
        for name in sorted(names):
            path = os.path.join(directory, name)
            if os.path.islink(path) or not os.path.isfile(path):
                continue
            with open(path, "rb") as handle:
                data = handle.read()
            slices = parse_macho(data)
            if not slices:
                continue
            files += 1
            relative = os.path.relpath(path, bundle)
            for macho in slices:
                if macho.minimum:
                    minimums[relative] = max(minimums.get(relative, (0, 0, 0)), macho.minimum)
                problems += [f"{relative}: {problem}" for problem in load_problems(macho, path, bundle, executable_dir)]

    highest = max(minimums.values(), default=declared)
    if declare and highest > declared:
        info["LSMinimumSystemVersion"] = version_text(highest)
        with open(info_path, "wb") as handle:
            plistlib.dump(info, handle)
        print(f"LSMinimumSystemVersion raised from {version_text(declared)} to {version_text(highest)}, "
              f"the highest a copied file needs", file=out)
        declared = highest
    for relative, minimum in sorted(minimums.items()):
        if minimum > declared:
            problems.append(f"{relative}: needs macOS {version_text(minimum)}, the bundle declares {version_text(declared)}")
    print(f"{files} Mach-O files, highest minimum macOS {version_text(highest)}, declared {version_text(declared)}", file=out)
    for problem in problems:
        print(f"  {problem}", file=out)
    return problems


def main(arguments):
    declare = "--declare" in arguments
    rest = [argument for argument in arguments if argument != "--declare"]
    if len(rest) != 1 or not os.path.isfile(os.path.join(rest[0], "Contents", "Info.plist")):
        print(__doc__.strip().splitlines()[-1], file=sys.stderr)
        return 2
    return 1 if check_bundle(rest[0], declare) else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
