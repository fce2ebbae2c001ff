# Read by `run` and `check`: sees to it that Debian packages are there.
#
# need_packages NAME...: installs the missing ones (with sudo where this is not root) and says
# which. Asks for nothing and touches nothing when all are there.

is_installed() {
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

need_packages() {
    local name missing=() as_root=()
    for name in "$@"; do
        is_installed "$name" || missing+=("$name")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "As root, install these packages first: ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    echo "Installing: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# What the program itself is built from and shows its texts in.
packages_to_run=(build-essential cmake ninja-build qt6-base-dev qt6-wayland
                 fonts-crosextra-carlito)

# What its tests and its package need besides.
packages_to_check=(libgtest-dev libgmock-dev libbenchmark-dev clang clang-format
                   desktop-file-utils appstream lintian man-db dpkg-dev file
                   pkg-config libatspi2.0-dev at-spi2-core dbus xvfb locales
                   libreoffice-writer-nogui)
