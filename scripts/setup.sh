# Sourced by the other scripts: installs the Debian packages the build needs
# (quietly, and only those missing) and offers the build helpers.
set -euo pipefail

VORN_ROOT="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
VORN_JOBS="${VORN_JOBS:-$(nproc)}"

vorn_require_packages() {
    local missing=()
    for package in "$@"; do
        if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed'; then
            missing+=("$package")
        fi
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing: ${missing[*]}"
    local sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends \
        "${missing[@]}" >/dev/null
}

vorn_require_build_packages() {
    vorn_require_packages cmake ninja-build g++ pkg-config libgtest-dev libgmock-dev \
        libbenchmark-dev libxerces-c-dev openjdk-17-jdk-headless
}

# vorn_build DIR [cmake options...]: configures (once) and builds into DIR.
vorn_build() {
    local dir="$1"
    shift
    cmake -S "$VORN_ROOT" -B "$dir" -G Ninja "$@" >/dev/null
    cmake --build "$dir" -j "$VORN_JOBS"
}
