# Sourced by ./run and ./test: installs what building needs and is missing, and configures the release build.

packages="cmake ninja-build g++ qt6-base-dev qt6-svg-dev libgdal-dev libqpdf-dev libgeos-dev libeigen3-dev libpng-dev pkg-config libgtest-dev libbenchmark-dev python3 fonts-liberation fonts-dejavu-core"

missing_packages() {
    for package in $packages; do
        dpkg-query --show --showformat='${Status}\n' "$package" 2>/dev/null | grep --quiet 'ok installed' ||
            printf '%s ' "$package"
    done
}

install_missing() {
    missing=$(missing_packages)
    [ -n "$missing" ] || return 0
    echo "Installing Debian packages: $missing"
    root=""
    if [ "$(id -u)" -ne 0 ]; then
        root="sudo"
        echo "(with sudo)"
    fi
    $root apt-get update
    # shellcheck disable=SC2086 -- the list is meant to be split
    $root env DEBIAN_FRONTEND=noninteractive apt-get install --yes --no-install-recommends $missing
}

prepare() {
    install_missing
    cmake --preset release
}
