#!/usr/bin/env bash
# Takes the manual's pictures from the running program: scripts/take-pictures.sh PROGRAM [FOLDER [LANGUAGE [SCALE]]]
#   PROGRAM   bin/Tessaro of a build
#   FOLDER    where they go; docs/manual/images without one
#   LANGUAGE  en, de, fr or es; SCALE 1 or 2
# Each is taken in a home of its own, on a screen of its own. Needs xvfb, openbox,
# xdotool, x11-utils, imagemagick, xclip, dbus. The pictures say the name of whoever takes them.
# DARK=1 takes them in a dark palette, FONT=1.5 with larger letters.
set -euo pipefail
[ -n "${PICTURES_ON_A_BUS:-}" ] || exec env PICTURES_ON_A_BUS=1 dbus-run-session -- "$0" "$@"
source=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
program=$(realpath "$1")
target=${2:-$source/docs/manual/images}
language=${3:-en}
scale=${4:-1}
mkdir -p "$target"
work=/tmp/anna
mkdir "$work" 2>/dev/null || work=$(mktemp -d) # a place that reads well in the pictures
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$work"' EXIT

export HOME=$work XDG_RUNTIME_DIR=$work/run LANG=$language.UTF-8 LC_ALL= QT_SCALE_FACTOR=$scale
case $language in en) LANG=en_GB.UTF-8 ;; de) LANG=de_DE.UTF-8 ;; fr) LANG=fr_FR.UTF-8 ;; es) LANG=es_ES.UTF-8 ;; esac
export LANGUAGE=$language
unset XDG_CONFIG_HOME XDG_DATA_HOME WAYLAND_DISPLAY LC_ALL
mkdir -p "$HOME/.config" "$HOME/Projects" "$XDG_RUNTIME_DIR"
chmod 700 "$XDG_RUNTIME_DIR"
if [ -n "${DARK:-}" ]; then
  export XDG_CURRENT_DESKTOP=KDE KDE_SESSION_VERSION=5
  cat >"$HOME/.config/kdeglobals" <<'COLORS'
[Icons]
Theme=breeze-dark
[Colors:Window]
BackgroundNormal=42,46,50
ForegroundNormal=252,252,252
[Colors:View]
BackgroundNormal=27,30,32
BackgroundAlternate=35,38,41
ForegroundNormal=252,252,252
[Colors:Button]
BackgroundNormal=49,54,59
ForegroundNormal=252,252,252
[Colors:Selection]
BackgroundNormal=61,174,233
ForegroundNormal=252,252,252
[Colors:Tooltip]
BackgroundNormal=49,54,59
ForegroundNormal=252,252,252
COLORS
fi
[ -z "${FONT:-}" ] || export QT_FONT_DPI=$(awk "BEGIN { print int(96 * $FONT) }")

number=90
while [ -e "/tmp/.X11-unix/X$number" ]; do number=$((number + 1)); done
export DISPLAY=:$number
Xvfb "$DISPLAY" -screen 0 $((1500 * scale))x$((1000 * scale))x24 >/dev/null 2>&1 &
sleep 1
openbox >/dev/null 2>&1 &
sleep 0.5

key() { xdotool key --delay 60 "$@"; sleep 0.5; }
write() { xdotool type --delay 30 "$*"; sleep 0.4; }
window() { xdotool getactivewindow; }
# The window that is in front, with what lies over it, as the screen shows it.
take() { # NAME [WINDOW]
  local id=${2:-$(window)} geometry
  sleep 0.3
  geometry=$(LC_ALL=C xwininfo -id "$id" | awk '/Absolute upper-left X/ { x = $4 } /Absolute upper-left Y/ { y = $4 }
    /Width:/ { w = $2 } /Height:/ { h = $2 } END { print w "x" h "+" x "+" y }')
  import -window root -crop "$geometry" +repage "$target/$1.png"
}
size() { xdotool windowsize --sync "$main" $(($1 * scale)) $(($2 * scale)); sleep 0.8; }

"$program" settings set autoOpenFolder off
"$program" parameters >/dev/null
"$program" &
sleep 4
main=$(xdotool search --onlyvisible --class Tessaro | tail -n 1)
main=$(xdotool search --onlyvisible --name '^Tessaro' | head -n 1)
size 900 620
take welcome "$main"
key Return
sleep 1
key ctrl+a
write "Acme Pictures"
key Tab Tab
write "Spring Promo"
take project "$main"
key ctrl+r
size 1180 680
sleep 1
take result "$main"
key ctrl+r
size 900 620
key ctrl+2
sleep 1.5
size 1000 660
key Tab Tab
take templates "$main"
key ctrl+1
key ctrl+2
sleep 0.5
size 1260 700
# The list's fifth template, then by its letters the folder that is made for each day.
xdotool mousemove --window "$main" $((60 * scale)) $((182 * scale)) click 1
sleep 1
key ctrl+i
xdotool mousemove --window "$main" $((520 * scale)) $((88 * scale)) click 1
sleep 0.5
write "Day"
sleep 1
take rules "$main"
key ctrl+i
key ctrl+1
size 900 620
cat >"$work/shots.csv" <<'CSV'
Client,Project title,Kind of work
Acme Pictures,Spring Promo,Commercial
Acme Pictures,Summer Promo,Commercial
Big Fish,Annual Report,Corporate
CSV
"$program" create --in "$HOME/Projects" --set "Client=Acme Pictures" --set "Project title=Teaser" >"$work/made"
made=$(cat "$work/made")
rm -rf "$made"/01*
"$program" --check-project "$made"
sleep 2
take check "$main"
key Return
sleep 0.5
xdotool mousemove --window "$main" $((90 * scale)) $((562 * scale)) click 1
sleep 0.7
take place "$main"
key Escape
key ctrl+t
sleep 1.5
xclip -selection clipboard <"$work/shots.csv"
key ctrl+v
sleep 1.5
take table
key Escape
sleep 0.5
key ctrl+comma
sleep 1.5
preferences=$(window)
key ctrl+1
take preferences "$preferences"
key ctrl+2
take preferences-project "$preferences"
key ctrl+3
take parameters "$preferences"
key ctrl+4
take hotkeys "$preferences"
key Escape
sleep 0.5
key F1
sleep 1.5
take manual
key Escape
