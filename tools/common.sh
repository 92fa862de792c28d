# What ./run, ./test and .ci/run share. Source it; the current folder becomes the project's own.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

say() { printf '%s\n' "$@"; } # each text on a line of its own
die() { printf '%s\n' "$*" >&2; exit 1; }

# The packages of tools/packages whose use is one of those given.
packages_for() {
    local use package why
    while read -r use package why; do
        if [[ " $* " == *" $use "* ]]; then say "$package"; fi
    done < <(grep -v '^#' tools/packages)
}

is_installed() { [[ $(dpkg-query -W -f '${Status}' "$1" 2>/dev/null) == *" installed" ]]; }

# Installs what the uses given need. Nothing is asked of the network when all of it is there.
install_packages() {
    local package missing=() as_root=()
    while read -r package; do
        is_installed "$package" || missing+=("$package")
    done < <(packages_for "$@")
    if ((${#missing[@]} == 0)); then return; fi
    say "Installing: ${missing[*]}"
    if ((EUID != 0)); then
        command -v sudo >/dev/null || die "Please install these packages as root: ${missing[*]}"
        as_root=(sudo)
    fi
    # an empty array is kept apart, as "set -u" of an old bash minds it
    ${as_root[@]+"${as_root[@]}"} apt-get -qq update
    ${as_root[@]+"${as_root[@]}"} env DEBIAN_FRONTEND=noninteractive \
        apt-get -y -qq -o Dpkg::Use-Pty=0 install --no-install-recommends "${missing[@]}" >/dev/null
}

# configure PRESET [OPTION...]: shows the output only when it fails.
configure() {
    local log
    log=$(cmake --preset "$@" 2>&1) || { say "$log"; return 1; }
}

# build FOLDER [TARGET...]
build() {
    local folder=$1
    shift
    cmake --build "$folder" ${@:+--target "$@"}
}
