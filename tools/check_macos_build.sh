#!/usr/bin/env bash
# Compiles everything a Mac build compiles (sources, Objective-C++ files, cli, tools, benchmarks,
# fuzz targets and tests) with clang for arm64-apple-macos13 against an Apple SDK and libc++, with
# the project's warnings as errors, then checks that every Apple symbol the objects call is
# exported by the SDK. Nothing is linked or run: there is no Qt for macOS on Linux.
#
# Usage: tools/check_macos_build.sh SDK_DIR [BUILD_DIR]   (default BUILD_DIR: build-macos-check)
set -euo pipefail

if [ $# -lt 1 ] || [ ! -d "$1" ]; then
    echo "usage: $0 SDK_DIR [BUILD_DIR]  (SDK_DIR: a MacOSX*.sdk folder, or a folder holding one)" >&2
    exit 2
fi
sdk=$(cd "$1" && pwd)
if [ ! -d "$sdk/usr/include" ]; then
    sdk=$(find "$sdk" -maxdepth 1 -type d -name 'MacOSX*.sdk' | sort | tail -n 1)
fi
if [ -z "$sdk" ] || [ ! -d "$sdk/System/Library/Frameworks" ]; then
    echo "$0: no macOS SDK in $1" >&2
    exit 2
fi

project=$(cd "$(dirname "$0")/.." && pwd)
build=${2:-$project/build-macos-check}
mkdir -p "$build"
build=$(cd "$build" && pwd)

# An SDK copied through a store without symbolic links keeps each link as a small file that holds
# the link's target (usr/include/pthread.h reads "pthread/pthread.h"). Compile against a private
# copy in which those are links again.
if [ ! -f "$build/sdk.stamp" ] || [ "$(cat "$build/sdk.stamp")" != "$sdk" ]; then
    rm -rf "$build/sdk"
    cp -a "$sdk" "$build/sdk"
    chmod -R u+w "$build/sdk"
    find "$build/sdk" -type f -size -256c | while IFS= read -r file; do
        target=$(head -c 255 "$file")
        case "$target" in *[[:space:]]*|*'#'*|'') continue ;; esac
        if [ -e "$(dirname "$file")/$target" ]; then
            rm "$file"
            ln -s "$target" "$file"
        fi
    done
    echo "$sdk" > "$build/sdk.stamp"
fi
original_sdk=$sdk
sdk=$build/sdk

for tool in clang++ llvm-nm cmake ninja python3 qtpaths6; do
    command -v "$tool" >/dev/null || { echo "$0: $tool is missing (tools/install-deps.sh --macos-check installs it)" >&2; exit 2; }
done
qt_cmake_dir="$(qtpaths6 --query QT_INSTALL_LIBS)/cmake"

# Google Benchmark's headers are plain C++; give them a folder of their own so that no Linux
# system header folder enters the Apple compile.
export FERROW_MACOS_EXTRA_FLAGS=""
if [ -d /usr/include/benchmark ]; then
    mkdir -p "$build/third-party"
    ln -sfn /usr/include/benchmark "$build/third-party/benchmark"
    FERROW_MACOS_EXTRA_FLAGS="-isystem $build/third-party"
fi

export FERROW_MACOS_SDK="$sdk"
cmake -S "$project" -B "$build" -G Ninja --log-level=ERROR \
    -DCMAKE_TOOLCHAIN_FILE="$project/cmake/MacSdkCheck.toolchain.cmake" \
    -DCMAKE_PREFIX_PATH="$qt_cmake_dir" -DCMAKE_BUILD_TYPE=Debug -DFERROW_WARNINGS_AS_ERRORS=ON >/dev/null

# Every object of every target, and nothing that links.
mapfile -t objects < <(ninja -C "$build" -t targets all | sed -n 's/^\(.*\.o\): .*/\1/p' | sort -u)
sources=$(printf '%s\n' "${objects[@]}" | grep -vc '_autogen/\|qrc_\|/\.qt/' || true)
echo "Compiling ${#objects[@]} objects (${sources} from the project's sources) for arm64-apple-macos13 against $(basename "$original_sdk")"
if ! ninja -C "$build" -k 0 "${objects[@]}" > "$build/compile.log" 2>&1; then
    grep -E 'error:|warning:|^FAILED' "$build/compile.log" | head -n 60
    echo "macOS compile check: FAILED (full log: $build/compile.log)"
    exit 1
fi

python3 "$project/tools/check_macos_symbols.py" "$sdk" "$build"
echo "macOS compile check: passed"
