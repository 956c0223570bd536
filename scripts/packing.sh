# Sourced by ./package: what is made of a build, and what looks at it.

# quietly LOG COMMAND... : its output is shown only when it fails.
quietly() {
  local log=$1
  shift
  if ! "$@" >"$log" 2>&1; then
    tail -n 40 "$log" >&2
    echo "This failed: $*" >&2
    return 1
  fi
}

make_debian_package() { # BUILD FOLDER
  rm -f "$2"/tessaro*.deb
  quietly "$1/cpack.log" cpack --config "$1/CPackConfig.cmake" -G DEB -B "$1/cpack"
  # The symbols are a package like any other, whatever the tool calls its file.
  local file name
  for file in "$1"/cpack/*.deb "$1"/cpack/*.ddeb; do
    [ -e "$file" ] || continue
    name=$(basename "$file")
    mv "$file" "$2/${name%.*}.deb"
  done
  # That package comes without a word about changes and rights, and with sums of files that are not in it.
  local symbols contents=$1/cpack/symbols
  symbols=$(echo "$2"/tessaro-dbgsym_*.deb)
  rm -rf "$contents"
  dpkg-deb -R "$symbols" "$contents"
  install -d -m 755 "$contents/usr/share" "$contents/usr/share/doc"
  ln -s tessaro "$contents/usr/share/doc/tessaro-dbgsym"
  chmod -R u=rwX,go=rX "$contents"
  (cd "$contents" && find usr -type f -exec md5sum {} + >DEBIAN/md5sums)
  quietly "$1/dpkg-deb.log" dpkg-deb --root-owner-group -b "$contents" "$symbols"
  rm -rf "$contents"
}

# Nothing is passed over but what packaging/debian/lintian-overrides names with its reason.
check_debian_package() { # FOLDER
  local contents=$1/.contents
  rm -rf "$contents"
  quietly "$1/.log" dpkg-deb -x "$1"/tessaro_*.deb "$contents"
  lintian --allow-root --no-cfg --fail-on error,warning,info --display-info "$1"/tessaro_*.deb
  lintian --allow-root --no-cfg --fail-on error,warning "$1"/tessaro-dbgsym_*.deb
  desktop-file-validate "$contents/usr/share/applications"/*.desktop
  quietly "$1/.log" appstreamcli validate --no-net "$contents/usr/share/metainfo"/*.xml
  python3 -B "$source/tests/packaging/file_browsers.py" "$contents/usr/share"/{nautilus,thunarx}-python/extensions/tessaro_menu.py
  rm -rf "$contents" "$1/.log"
}

# Builds what is packed, makes the Debian package of it and has it looked at.
build_and_check_package() { # BUILD FOLDER
  (cd "$source" && build_preset package "$1")
  if grep -n 'warning:' "$1/build.log" >&2; then
    echo "The build of the package prints warnings." >&2
    return 1
  fi
  mkdir -p "$2"
  make_debian_package "$1" "$2"
  check_debian_package "$2"
}

# What every desktop has and must match its drivers, its fonts and its C library.
of_the_system='^(ld-linux.*|linux-vdso|lib(c|m|dl|rt|pthread|resolv|stdc\+\+|gcc_s|GL|EGL|GLX|OpenGL|GLdispatch|X11|X11-xcb|xcb|Xau|Xdmcp|fontconfig|freetype|expat|z|uuid|drm|gbm|wayland-.*))\.so'

copy_libraries() { # FOLDER FILE...
  local folder=$1 path
  shift
  ldd "$@" | sed -n 's/.* => \(\/[^ ]*\).*/\1/p' | sort -u | while read -r path; do
    [[ $(basename "$path") =~ $of_the_system ]] || cp -nL "$path" "$folder/"
  done
}

# The programs, the toolkit's libraries and plug-ins, and nothing that a folder somewhere could not offer to a desktop.
make_archive() { # BUILD FOLDER
  local version name stage plugins plugin
  version=$(sed -n 's/^CPACK_PACKAGE_VERSION:STATIC=//p; s/^set(CPACK_PACKAGE_VERSION "\(.*\)")/\1/p' "$1/CPackConfig.cmake" | head -n 1)
  name=tessaro-$version-linux-$(uname -m)
  stage=$1/archive/$name
  rm -rf "$1/archive" "$2"/tessaro-*-linux-*.tar.xz
  mkdir -p "$stage"
  quietly "$1/install.log" env DESTDIR="$1/archive/root" cmake --install "$1" --prefix /usr --strip
  mv "$1/archive/root/usr"/* "$stage/"
  rm -rf "$1/archive/root" "$stage"/share/{polkit-1,dbus-1,applications,mime,metainfo,icons,kio,nemo,nautilus-python,thunarx-python}
  plugins=$(dirname "$(find /usr/lib -path '*/qt6/plugins/platforms/libqxcb.so' | head -n 1)")/..
  mkdir -p "$stage/lib/qt6/plugins"
  for plugin in platforms/libqxcb.so platforms/libqoffscreen.so platforms/libqwayland-generic.so iconengines/libqsvgicon.so \
    imageformats/libqsvg.so xcbglintegrations platforminputcontexts platformthemes/libqxdgdesktopportal.so \
    wayland-shell-integration wayland-decoration-client; do
    [ -e "$plugins/$plugin" ] || continue
    mkdir -p "$stage/lib/qt6/plugins/$(dirname "$plugin")"
    cp -rL "$plugins/$plugin" "$stage/lib/qt6/plugins/$(dirname "$plugin")/"
  done
  local contents=$stage/lib/tessaro/Tessaro.app/Contents
  copy_libraries "$stage/lib" "$stage/bin/Tessaro" "$contents"/{MacOS/Tessaro,PlugIns/*.so} $(find "$stage/lib/qt6" -name '*.so')
  strip --strip-unneeded "$contents"/{MacOS/Tessaro,PlugIns/*.so,Helpers/*}
  # Each finds the libraries from where it lies itself.
  patchelf --set-rpath '$ORIGIN/../lib' "$stage/bin/Tessaro"
  patchelf --set-rpath '$ORIGIN/../../../..' "$contents"/{MacOS/Tessaro,PlugIns/*.so}
  patchelf --set-rpath '$ORIGIN' "$stage/lib"/*.so*
  find "$stage/lib/qt6" -name '*.so' -exec patchelf --set-rpath '$ORIGIN/../../..' {} +
  printf '[Paths]\nPrefix=../../../../..\nPlugins=lib/qt6/plugins\n' >"$contents/MacOS/qt.conf"
  chmod -R u=rwX,go=rX "$stage"
  tar -C "$1/archive" --sort=name --owner=0 --group=0 --numeric-owner -cJf "$2/$name.tar.xz" "$name"
  rm -rf "$1/archive"
}
