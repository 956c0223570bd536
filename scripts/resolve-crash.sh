#!/bin/sh
# resolve-crash.sh REPORT: the backtrace of a crash report with functions and lines. Needs addr2line (binutils), and the
# files that crashed, or ones from the same build, where the report says they lie.
set -eu
report=$1
maps=$(mktemp)
trap 'rm -f "$maps"' EXIT
sed -n '/^Loaded files:/,$p' "$report" | grep ' /' >"$maps" || true
sed '/^Threads:/,$d' "$report"
echo "Backtrace:"
sed -n '/^Backtrace:/,/^Loaded files:/p' "$report" | grep '^[0-9]' | while read -r number address; do
  while read -r range _ _ _ _ file; do
    if [ $((address)) -ge $((0x${range%-*})) ] && [ $((address)) -lt $((0x${range#*-})) ]; then
      base=$(awk -v file="$file" '$6 == file { split($1, part, "-"); print part[1]; exit }' "$maps")
      # One before the address of the return is in the call.
      place=$(printf '0x%x' $((address - 0x$base - 1)))
      printf '%s  %s  (%s)\n' "$number" "$(addr2line -Cfpe "$file" "$place" 2>/dev/null || echo '??')" "${file##*/}"
    fi
  done <"$maps"
done
