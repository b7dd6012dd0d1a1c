# Shared by the scripts: installs the Debian packages that are missing.
# Usage: ensure_packages PACKAGE...
ensure_packages() {
    local missing=()
    local p
    for p in "$@"; do
        dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing missing packages: ${missing[*]}"
    local sudo=()
    if [ "$(id -u)" -ne 0 ]; then
        if command -v sudo >/dev/null 2>&1; then
            sudo=(sudo)
        else
            echo "error: packages ${missing[*]} are missing, and installing them needs root or sudo" >&2
            return 1
        fi
    fi
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

BUILD_PACKAGES=(cmake ninja-build g++ pkg-config qt6-base-dev libgl-dev libgtest-dev libgmock-dev
    librsvg2-bin nlohmann-json3-dev)
# The staging-install test validates the installed desktop entry, metainfo and manual page.
# The version-control test runs git as a user's repository would.
TEST_PACKAGES=(desktop-file-utils appstream man-db git)
# scripts/package: dpkg-shlibdeps (dpkg-dev, which reads the binaries with file) computes the
# package's dependencies; lintian checks the package.
PACKAGE_PACKAGES=(dpkg-dev file lintian)
