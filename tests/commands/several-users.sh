#!/bin/bash
# several-users.sh TESSARO: a studio's computer from its set-up by root to three users who work on it at once, in a world of
# its own that ends with it. Needs root. Prints what is not as it should be, and ends with the number of such things.
set -u
if [ "$1" != --inside ]; then
  status=0
  unshare --mount --pid --fork --kill-child --mount-proc "$0" --inside "$@" || status=$?
  rmdir /Library 2>/dev/null # only where nobody had it before
  exit $status
fi
tessaro=$2
mount -t tmpfs -o mode=755 tmpfs /run
mkdir -p /run/etc /run/Library
cp -a /etc/. /run/etc && mount --bind /run/etc /etc
mkdir -p /Library && mount --bind /run/Library /Library # machine-wide settings
groupdel studio 2>/dev/null
groupadd studio
for user in anna ben cleo; do
  userdel "$user" 2>/dev/null # the machine may know one of that name; this is a copy of its list
  groupdel "$user" 2>/dev/null
  useradd --no-create-home --home-dir "/run/home/$user" --groups studio "$user"
  install -d -m 750 -o "$user" -g "$user" "/run/home/$user"
done
mkdir -p /run/studio && install -d -m 2775 -g studio /run/studio/projects /run/studio/library

as() { # USER WORD... : as that user, who logged in afresh and whose files a team may change
  local user=$1
  shift
  setpriv --reuid "$user" --regid "$user" --init-groups env -i PATH=/usr/bin:/bin HOME="/run/home/$user" LC_ALL=C.UTF-8 \
    LSAN_OPTIONS="${LSAN_OPTIONS:-}" UBSAN_OPTIONS="${UBSAN_OPTIONS:-}" bash -c 'umask 002; exec "$@"' - "$@"
}
as_root() { env -i PATH=/usr/bin:/bin HOME=/root LC_ALL=C.UTF-8 LSAN_OPTIONS="${LSAN_OPTIONS:-}" "$@"; }

wrong=0
expect() { # SENTENCE ACTUAL EXPECTED
  [ "$2" = "$3" ] && return
  printf '%s\n  actual:   %s\n  expected: %s\n' "$1" "$2" "$3"
  wrong=$((wrong + 1))
}
strangers() { find "$2" ! -user "$1" -printf '%p '; } # what below a folder is not the user's

# Root sets the machine up, and one user's account with sudo.
as_root "$tessaro" settings set requireAdminPasswordForPrefs 1
expect "root protects the preferences" $? 0
as_root env SUDO_USER=anna SUDO_UID="$(id -u anna)" SUDO_GID="$(id -g anna)" HOME=/run/home/anna \
  "$tessaro" settings set templateLocation /run/studio/library >/run/output 2>&1
expect "sudo in anna's name" "$? $(cat /run/output)" "0 "
expect "what sudo made in anna's home is anna's" "$(strangers anna /run/home/anna)" ""
expect "anna has the setting" "$(as anna "$tessaro" settings get templateLocation)" /run/studio/library
for user in ben cleo; do
  as $user "$tessaro" settings set templateLocation /run/studio/library >/dev/null 2>&1
  expect "$user is refused what is protected for all" $? 3
done
as_root "$tessaro" settings unset requireAdminPasswordForPrefs
for user in ben cleo; do
  as $user "$tessaro" settings set templateLocation /run/studio/library
  expect "$user sets it when the protection is gone" $? 0
done

# One library, three users: what one makes the others see, use and change.
as anna mkdir -p /run/home/anna/Spot.tzt/Files/Audio
as anna bash -c 'echo sequence >/run/home/anna/Spot.tzt/Files/Template.seq'
as anna "$tessaro" template import /run/home/anna/Spot.tzt
expect "anna imports" $? 0
for user in anna ben cleo; do
  expect "$user sees it" "$(as $user "$tessaro" templates | grep -c Spot)" 1
done
as ben "$tessaro" template rename Spot Commercial
expect "ben renames anna's template" $? 0
as cleo "$tessaro" template duplicate Commercial
expect "cleo duplicates it" $? 0

# Three at once, each with a title of their own, then all with the same.
for user in anna ben cleo; do
  as $user "$tessaro" parameters add Title >/dev/null
  for i in 1 2 3 4; do
    as $user "$tessaro" create --template Commercial --in /run/studio/projects --set "Title=$user$i" >/dev/null &
  done
done
wait
for user in anna ben cleo; do
  for i in 1 2 3 4; do
    project=$(find /run/studio/projects -maxdepth 3 -type d -name "*$user$i*")
    expect "one project $user$i" "$(echo "$project" | wc -l)" 1
    expect "all of $user$i is $user's" "$(strangers $user "$project")" ""
    expect "the team may change all of it" "$(find "$project" ! -group studio -o ! -type l ! -perm -g+w)" ""
    expect "$user$i is whole" "$(cat "$project"/*"$user$i".seq) $(ls "$project" | wc -l)" "sequence 2"
  done
done
as anna mkdir /run/studio/projects/same
for user in anna ben cleo; do
  as $user "$tessaro" parameters remove Editor --yes >/dev/null # the names would differ by it
done
for user in anna ben cleo; do
  (as $user "$tessaro" create --template Commercial --in /run/studio/projects/same --set Title=Same >/dev/null 2>&1
   echo $? >"/run/status.$user") &
done
wait
cat /run/status.* >/run/statuses
expect "one project of the name, and the others were told" "$(sort /run/statuses | tr '\n' ' ')" "0 3 3 "
made=$(find /run/studio/projects/same -name '*_Same')
expect "it is one user's alone" "$(find "$made" -printf '%u\n' | sort -u | wc -l) $(ls "$made" | wc -l)" "1 2"
expect "nothing hidden is left" "$(find /run/studio -name '.*' -printf '%p ')" ""

# Away with it: into the Trash of whoever removes it, whosever it is.
as cleo "$tessaro" template remove Commercial --yes >/run/output 2>&1
expect "cleo removes" "$? $(find /run/studio/library -maxdepth 1 -name 'Commercial.tzt')" "0 "
for user in anna ben cleo; do
  expect "what $user has is $user's" "$(strangers $user "/run/home/$user" | tr ' ' '\n' | grep -v /Trash/files/)" ""
done
exit $wrong
