# Sourced by ./run and ./test: sees that the Debian packages named are there, and builds a preset.

need_packages() { # need_packages PACKAGE...: installs those that are missing; touches no network when none is
    command -v dpkg-query >/dev/null || {
        echo "This is no Debian system; these packages, or what they hold, must be there: $*" >&2
        return 0
    }
    local package missing=()
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    local as_root=()
    if [ "$(id -u)" != 0 ]; then
        command -v sudo >/dev/null || {
            echo "Missing packages, and neither root nor sudo to install them: ${missing[*]}" >&2
            return 1
        }
        as_root=(sudo)
    fi
    echo "Installing: ${missing[*]}" >&2
    "${as_root[@]}" apt-get update -qq >&2 &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

build_preset() { # build_preset NAME [cmake --build arguments...]: quiet unless it fails
    local preset=$1 log
    shift
    mkdir -p build
    log=build/$preset.log
    if ! { cmake --preset "$preset" && cmake --build --preset "$preset" -j "$(build_jobs)" "$@"; } >"$log" 2>&1; then
        tail -n 60 "$log" >&2
        echo "Building $preset failed; the whole log is in $PWD/$log" >&2
        return 1
    fi
}

build_jobs() { # one for each core, but none without 1.5 GiB of memory for itself
    local cores memory
    cores=$(nproc)
    memory=$(awk '/MemAvailable/ {print int($2 / 1572864)}' /proc/meminfo)
    [ "${memory:-0}" -ge 1 ] || memory=1
    echo $((cores < memory ? cores : memory))
}

BUILD_PACKAGES=(g++ cmake ninja-build)
DESKTOP_PACKAGES=(qt6-base-dev libgl-dev qt6-image-formats-plugins fonts-dejavu-core)
SCREEN_PACKAGES=(xvfb x11-xkb-utils xauth xdotool openbox dbus-daemon weston qt6-wayland) # screens of the tests' own
