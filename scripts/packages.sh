# Sourced by ./run, ./test and ./package: the Debian packages that building, running, testing and packing need, and their installation.

build_packages="g++ cmake ninja-build ccache mold pkg-config qt6-base-dev qt6-svg-dev libplist-dev libarchive-dev
  libxcb1-dev libxkbcommon-x11-dev libfontconfig-dev qt6-l10n-tools qt6-translations-l10n"
run_packages="fonts-dejavu-core libqt6svg6 qt6-qpa-plugins"
test_packages="xvfb xauth openbox dbus dbus-daemon attr e2fsprogs util-linux
  passwd polkitd pkexec x11-xkb-utils locales clang-format xfsprogs libfuse3-dev fuse3"
package_packages="dpkg-dev file gzip xz-utils patchelf lintian desktop-file-utils appstream
  python3-minimal"
tidy_packages="clang-tidy"

# install_missing PACKAGE... : installs those that are not there, and says so on standard error.
install_missing() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  if ! command -v apt-get >/dev/null; then
    echo "These packages (Debian's names) are needed and there is no apt-get to install them: ${missing[*]}" >&2
    return 1
  fi
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "These packages are missing, and without sudo only root can install them: apt-get install ${missing[*]}" >&2
      return 1
    fi
    as_root=(sudo)
  fi
  echo "Installing ${missing[*]}" >&2
  "${as_root[@]}" apt-get -qq update >&2
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get -qq -y -o Dpkg::Use-Pty=0 install --no-install-recommends "${missing[@]}" >&2
}

# build_preset PRESET FOLDER [TARGET...] : configures and builds; prints only when something goes wrong.
build_preset() {
  local preset=$1 folder=$2 log
  shift 2
  mkdir -p "$folder"
  export CCACHE_DIR=${CCACHE_DIR:-$folder/ccache}
  log=$folder/build.log
  if ! { cmake --preset "$preset" -S "$source" -B "$folder" &&
         cmake --build "$folder" ${1:+--target "$@"}; } >"$log" 2>&1; then
    tail -n 60 "$log" >&2
    echo "The build failed; the whole log is $log" >&2
    return 1
  fi
}
