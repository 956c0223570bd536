#!/bin/sh
# with-polkit.sh TEST HELPER: runs a test as an ordinary user in a small world of its own: users, a system bus and polkit
# that nobody outside sees and that end with it. Needs root. The test runs twice: first without a bus, then with all.
set -eu
if [ "$1" != --inside ]; then
  exec unshare --mount --pid --fork --kill-child --mount-proc "$0" --inside "$@"
fi
test=$2
helper=$3
here=$(cd "$(dirname "$0")" && pwd)
policy=$here/../../packaging/desktop/com.vantrel.Tessaro.policy.in

mount -t tmpfs -o mode=755 tmpfs /run
for folder in /etc /usr/share/polkit-1; do
  mkdir -p "/run/world$folder"
  cp -a "$folder/." "/run/world$folder"
  mount --bind "/run/world$folder" "$folder"
done
for user in editor administrator; do
  useradd --no-create-home --home-dir "/run/home/$user" --shell /bin/sh "$user"
  install -d -o "$user" -g "$user" "/run/home/$user" "/run/user/$user"
  chmod 700 "/run/user/$user"
done
printf 'editor:their own\nadministrator:right one\n' | chpasswd
echo 'polkit.addAdminRule(function() { return ["unix-user:administrator"]; });' >/etc/polkit-1/rules.d/10-test.rules
sed "s|@TESSARO_HELPER_PATH@|$helper|" "$policy" >/usr/share/polkit-1/actions/com.vantrel.Tessaro.policy
mkdir -p /run/dbus /run/studio/library /run/drive /run/full
mount -t tmpfs -o mode=755 tmpfs /run/drive # its root is not the editor's to write to
install -d -o editor /run/drive/mine
mount -t tmpfs -o size=64k,mode=1777 tmpfs /run/full
echo keep >/run/full/last.txt && chown editor /run/full/last.txt
dd if=/dev/zero of=/run/full/filler bs=1k 2>/dev/null || true
echo "root's own" >/run/studio/library/theirs.txt

as_editor() {
  setpriv --reuid editor --regid editor --init-groups env -i PATH=/usr/bin:/bin HOME=/run/home/editor \
    XDG_RUNTIME_DIR=/run/user/editor LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen TMPDIR=/run/home/editor \
    LSAN_OPTIONS="${LSAN_OPTIONS:-}" UBSAN_OPTIONS="${UBSAN_OPTIONS:-}" DBUS_SESSION_BUS_ADDRESS=disabled: "$test" "$@"
}
echo "Without a system bus:"
as_editor hasNobodyToAsk
dbus-uuidgen --ensure
dbus-daemon --system --fork
echo "With polkit:"
as_editor
