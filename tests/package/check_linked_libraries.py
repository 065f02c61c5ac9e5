#!/usr/bin/env python3
"""Fails when a program needs (ELF NEEDED) any Qt library other than the given ones."""
import subprocess
import sys


def needed(program):
    out = subprocess.run(["readelf", "-d", program], check=True, capture_output=True, text=True).stdout
    return [line.split("[", 1)[1].rstrip("]") for line in out.splitlines() if "(NEEDED)" in line]


def main():
    program, allowed = sys.argv[1], sys.argv[2:]
    libraries = needed(program)
    found = [lib for lib in libraries
             if lib.startswith("libQt") and not any(lib.startswith("lib" + name + ".") for name in allowed)]
    print(f"{program} needs: {', '.join(libraries)}")
    if found:
        print(f"FAIL: it should not need {', '.join(found)}")
        return 1
    print("ok: of Qt, only " + ", ".join(allowed))
    return 0


if __name__ == "__main__":
    sys.exit(main())
