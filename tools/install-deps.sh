#!/usr/bin/env bash
# Installs what building and testing Ferrow needs, and nothing when it is all there.
set -euo pipefail

install_debian() {
    local extra_packages=()
    [ "${1:-}" = "--fuzz" ] && extra_packages=(clang libclang-rt-dev)
    [ "${1:-}" = "--macos-check" ] && extra_packages=(clang llvm python3)
    [ "${1:-}" = "--package" ] && extra_packages=(dpkg-dev file lintian desktop-file-utils appstream)
    # `make test` scrapes ferrow-cli --serve with a real Prometheus and loads it with ab
    # (apache2-utils, a client only), plays a panel to the tray item on a private session bus
    # and X server (dbus-daemon, Xvfb, xdotool), and reads the application's windows as a screen
    # reader does there (pyatspi and the accessibility bus); without them those tests skip.
    local tools=()
    [ "${1:-}" = "--test" ] && extra_packages=(python3 apache2-utils dbus-daemon xvfb xdotool python3-pyatspi at-spi2-core) && tools=(prometheus)
    local packages=("${extra_packages[@]}" cmake ninja-build g++ make
        qt6-base-dev qt6-base-dev-tools qt6-qpa-plugins qt6-charts-dev libqt6sql6-sqlite
        qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libgl-dev libxcb1-dev
        libbenchmark-dev fonts-dejavu-core)
    local missing=() missing_tools=()
    for package in "${packages[@]}"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
    done
    for package in "${tools[@]}"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing_tools+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && [ ${#missing_tools[@]} -eq 0 ] && return 0

    local sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    local all=("${missing[@]}" "${missing_tools[@]}")
    echo "Installing ${all[*]}"
    $sudo apt-get update -qq
    if [ ${#missing[@]} -gt 0 ]; then
        DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq "${missing[@]}" >/dev/null
    fi
    if [ ${#missing_tools[@]} -gt 0 ]; then
        # The tests run the programs themselves: neither the node exporter Debian recommends with
        # Prometheus nor the system service the package starts (listening on every interface).
        DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing_tools[@]}" >/dev/null
        if command -v systemctl >/dev/null 2>&1; then
            $sudo systemctl disable --now "${missing_tools[@]}" >/dev/null 2>&1 || true
        fi
    fi
}

install_macos() {
    if ! command -v brew >/dev/null 2>&1; then
        echo "Ferrow builds on macOS with Homebrew (https://brew.sh); please install it first." >&2
        exit 1
    fi
    # Qt comes in one formula per module: the base, Charts, and the tools (lrelease).
    local formulae=(cmake ninja qtbase qtcharts qttools google-benchmark)
    [ "${1:-}" = "--fuzz" ] && formulae+=(llvm)
    local missing=()
    for formula in "${formulae[@]}"; do
        brew list --formula "$formula" >/dev/null 2>&1 || missing+=("$formula")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing ${missing[*]}"
    brew install --quiet "${missing[@]}"
}

case "$(uname -s)" in
    Linux)
        if command -v dpkg-query >/dev/null 2>&1; then
            install_debian "${1:-}"
        else
            echo "Not a Debian-like system: install CMake, Ninja, a C++20 compiler and Qt 6.4+ yourself." >&2
        fi
        ;;
    Darwin) install_macos "${1:-}" ;;
    *) echo "Unsupported system: $(uname -s)" >&2; exit 1 ;;
esac
