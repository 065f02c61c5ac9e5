#!/usr/bin/env python3
"""Checks that every Apple symbol the macOS objects call is exported by the SDK.

Usage: check_macos_symbols.py SDK_DIR BUILD_DIR

The macOS objects are those compiled from a `macos/` source folder. Their undefined symbols,
less those that the project's own objects define and C++ names (Qt, libc++), must each be exported
for arm64-macos by one of the SDK's .tbd stubs, or, for the C library (libSystem, whose stub the
SDK may lack), be declared by one of the SDK's usr/include headers.
"""
import pathlib
import re
import subprocess
import sys

TARGET_ARCHS = ("arm64", "arm64e")
# Supplied by the toolchain itself (the C++ ABI library, the compiler's runtime, the stack
# protector) or by Qt, not by an SDK framework.
RUNTIME = re.compile(r"^(___cxa_|___gxx_personality_|___isPlatformVersionAtLeast$|___stack_chk_|_qt_)")
SECTION = re.compile(r"^([a-z-]+):", re.MULTILINE)
LIST = re.compile(r"([a-z-]+):\s*\[([^\]]*)\]")
OBJC_PREFIXES = {
    "objc-classes": ("_OBJC_CLASS_$_", "_OBJC_METACLASS_$_"),
    "objc-eh-types": ("_OBJC_EHTYPE_$_",),
    "objc-ivars": ("_OBJC_IVAR_$_",),
}


def block_applies(targets):
    # tbd v4 names targets ("arm64-macos"), v3 architectures ("arm64").
    return not targets or any(t.split("-")[0] in TARGET_ARCHS and not t.endswith("maccatalyst") for t in targets)


def tbd_exports(text):
    """Symbols a .tbd stub exports for arm64 macOS (its `exports` and `reexports` blocks)."""
    exported = set()
    sections = list(SECTION.finditer(text))
    for index, section in enumerate(sections):
        if section.group(1) not in ("exports", "reexports"):
            continue
        end = sections[index + 1].start() if index + 1 < len(sections) else len(text)
        targets = []
        for key, body in LIST.findall(text[section.end():end]):
            names = body.replace("'", "").split()
            names = [n.strip(",") for n in names if n.strip(",")]
            if key in ("targets", "archs"):
                targets = names
            elif not block_applies(targets):
                continue
            elif key in OBJC_PREFIXES:
                for prefix in OBJC_PREFIXES[key]:
                    exported.update(prefix + n.lstrip("_") for n in names)
            elif key in ("symbols", "weak-symbols", "thread-local-symbols"):
                exported.update(names)
    return exported


def symbols(objects, flag):
    names = set()
    for chunk in range(0, len(objects), 200):
        output = subprocess.run(["llvm-nm", flag, "-j", *objects[chunk:chunk + 200]],
                                check=True, capture_output=True, text=True).stdout
        names.update(line.strip() for line in output.splitlines() if line.strip() and not line.endswith(":"))
    return names


def declared_in_headers(sdk, names):
    """The names that a C header under usr/include declares as a function or variable."""
    wanted = {n[1:]: n for n in names if n.startswith("_")}
    found = set()
    pattern = re.compile(r"\b(" + "|".join(map(re.escape, wanted)) + r")\b") if wanted else None
    if pattern:
        for header in (sdk / "usr" / "include").rglob("*.h"):
            if header.parts[-3:-1] == ("c++", "v1"):
                continue
            for match in pattern.finditer(header.read_text(errors="replace")):
                found.add(wanted[match.group(1)])
            if len(found) == len(wanted):
                break
    return found


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    sdk, build = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    every_object = sorted(str(p) for p in build.rglob("*.o"))
    mac_objects = [o for o in every_object if "/macos/" in o]
    if not mac_objects:
        sys.exit("no macOS objects found under " + str(build))

    needed = symbols(mac_objects, "-u") - symbols(every_object, "--defined-only")
    needed = {n for n in needed if not n.startswith("__Z") and not RUNTIME.match(n)}  # C++ names: Qt, libc++, ours

    exported = set()
    for stub in sdk.rglob("*.tbd"):
        exported |= tbd_exports(stub.read_text(errors="replace"))
    missing = needed - exported
    from_headers = declared_in_headers(sdk, missing)
    missing -= from_headers
    if "-v" in sys.argv:
        print("C library calls (declared in usr/include):", " ".join(sorted(from_headers)))

    print(f"{len(mac_objects)} macOS objects call {len(needed)} Apple symbols; "
          f"{len(needed) - len(missing)} found in the SDK")
    if missing:
        print("Not exported by the SDK:", file=sys.stderr)
        for name in sorted(missing):
            print("  " + name, file=sys.stderr)
        sys.exit(1)


if __name__ == "__main__":
    main()
