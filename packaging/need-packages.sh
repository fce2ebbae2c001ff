# Read by `run` and `check`: sees to it that Debian packages are there.
#
# need_packages NAME...: installs the missing ones (with sudo where this is not root) and says
# which. Asks for nothing and touches nothing when all are there.
# need_page_tools: what the page for a browser is built with; SELVANE_WASM_CLANG is then set.

is_installed() {
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        return 1
    fi
}

need_packages() {
    local name missing=()
    for name in "$@"; do
        is_installed "$name" || missing+=("$name")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    if ! as_root true; then
        echo "As root, install these packages first: ${missing[*]}" >&2
        return 1
    fi
    echo "Installing: ${missing[*]}"
    as_root apt-get update -qq
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# The newest clang that comes with its libraries for WebAssembly.
newest_wasm_clang() {
    apt-cache pkgnames libclang-rt- |
        sed -n 's/^libclang-rt-\([0-9]*\)-dev-wasm32$/\1/p' | sort -n | tail -1
}

need_page_tools() {
    SELVANE_WASM_CLANG=$(newest_wasm_clang)
    if [ -z "$SELVANE_WASM_CLANG" ]; then # on a machine that has not looked yet
        as_root apt-get update -qq
        SELVANE_WASM_CLANG=$(newest_wasm_clang)
    fi
    if [ -z "$SELVANE_WASM_CLANG" ]; then
        echo "Debian serves no clang with libraries for WebAssembly here." >&2
        return 1
    fi
    export SELVANE_WASM_CLANG
    need_packages "${packages_to_page[@]}" \
        "clang-$SELVANE_WASM_CLANG" "lld-$SELVANE_WASM_CLANG" \
        "libc++-$SELVANE_WASM_CLANG-dev-wasm32" "libclang-rt-$SELVANE_WASM_CLANG-dev-wasm32"
    command -v npm >/dev/null || need_packages nodejs npm
    # The versions that package-lock.json names.
    if ! cmp -s src/web/package-lock.json src/web/node_modules/.installed-lock.json; then
        npm ci --prefix src/web --no-audit --no-fund --loglevel=error
        cp src/web/package-lock.json src/web/node_modules/.installed-lock.json
    fi
}

# What the program itself is built from and shows its texts in.
packages_to_run=(build-essential cmake ninja-build qt6-base-dev qt6-wayland
                 fonts-crosextra-carlito)

# What its tests and its package need besides.
packages_to_check=(libgtest-dev libgmock-dev libmuparser-dev libbenchmark-dev clang clang-format
                   diction desktop-file-utils appstream lintian man-db dpkg-dev file
                   pkg-config libatspi2.0-dev at-spi2-core dbus xvfb locales
                   libreoffice-writer-nogui)

# What the page is built from besides clang's packages, and what its tests need.
packages_to_page=(build-essential cmake ninja-build wasi-libc fonts-crosextra-carlito
                  python3-fonttools python3-brotli)
packages_to_check_page=(chromium)
