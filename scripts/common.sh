# Shell helpers of the scripts in this folder; sourced, never run.

SOURCE=$(cd "$(dirname "$0")/.." && pwd)
: "${HOME:=$(getent passwd "$(id -u)" | cut -d: -f6)}"
CACHE=${XDG_CACHE_HOME:-$HOME/.cache}/orv3cal

say() { echo "== $*"; }
fail() { echo "$(basename "$0"): $*" >&2; exit 1; }

# Those of the named Debian packages that are not installed.
missing_packages() {
  for package; do
    dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed ||
      echo "$package"
  done
}

# Installs what is missing of the named Debian packages; takes no time when nothing is.
need_packages() {
  missing=$(missing_packages "$@" | tr '\n' ' ')
  [ -n "$missing" ] || return 0
  as_root=
  if [ "$(id -u)" != 0 ]; then
    sudo -n true 2>/dev/null || fail "not installed: $missing- install them as root: apt-get install $missing"
    as_root="sudo -n"
  fi
  say "installing $missing"
  log=$(mktemp)
  # A broken list of some other source must not stop us; a package that is not found will.
  $as_root apt-get -q update >"$log" 2>&1 </dev/null || echo "apt-get update complained; going on"
  if ! $as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=300 \
      install --no-install-recommends $missing >>"$log" 2>&1 </dev/null; then
    cat "$log"
    fail "apt-get could not install $missing"
  fi
  rm -f "$log"
}

# The machine's own mirror of its release, without the security lists.
main_source() {
  codename=$(. /etc/os-release && echo "$VERSION_CODENAME")
  site=$(apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' |
         awk -v release="$codename" '$2 == release && $3 == "main" { print $1; exit }')
  [ -n "$site" ] && echo "deb $site $codename main"
}

# Gives a Wine prefix the font of the signs in a caption's buttons, which are letters without it.
wine_symbols() {
  for font in /usr/share/wine/fonts/marlett.ttf "$CACHE/wine32/usr/share/wine/fonts/marlett.ttf"; do
    [ ! -e "$font" ] || cp "$font" "$1/drive_c/windows/Fonts"
  done
}

# The packages of the Python module and its tests.
PYTHON_PACKAGES="python3-dev pybind11-dev python3-numpy python3-pandas"

# The packages of a native build and its tests.
NATIVE_PACKAGES="cmake ninja-build g++ ccache pkgconf libgtest-dev libeigen3-dev libcli11-dev
                 nlohmann-json3-dev libfmt-dev libfast-float-dev
                 libbenchmark-dev libsqlite3-dev libxlsxwriter-dev clang-format python3"

# The packages that make the page.
PAGE_PACKAGES="cmake ninja-build g++ ccache libeigen3-dev libgtest-dev libcli11-dev nlohmann-json3-dev
               libxlsxwriter-dev emscripten libfast-float-dev libfmt-dev"

# Node and npm: what is on the path, or Debian's.
need_node() {
  command -v node >/dev/null && command -v npm >/dev/null || need_packages nodejs npm
}

# The npm packages that bundle and test the page, in the versions of web/package-lock.json.
page_modules() {
  [ web/node_modules/.package-lock.json -nt web/package-lock.json ] ||
    (cd web && npm ci --no-audit --no-fund --loglevel=error) || fail "npm could not install web/package-lock.json"
}
