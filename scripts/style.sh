# Sourced by ./test: whether the sources keep to the house's style. What clang-tidy has passed is recorded by its checksum in
# scripts/tidy.sums, so that only what changed since is looked at; scripts/record-tidy.sh looks at it and records it.

style_files() { (cd "$source" && find src tests benchmarks resources -name '*.cpp' -o -name '*.h' | sort); }

# check_format : says which files clang-format would change.
check_format() {
  local wrong
  wrong=$(cd "$source" && style_files | xargs -n 40 clang-format --dry-run 2>&1 | sed -n 's/^\([^: ]*\):.*clang-format-violations.*/\1/p' | sort -u)
  [ -z "$wrong" ] && return 0
  printf 'clang-format would change these files (clang-format -i FILE does it):\n%s\n' "$wrong" >&2
  return 1
}

# tidy_sums : a line for each source, over the file, its header and the rules.
tidy_sums() {
  (cd "$source" && find src -name '*.cpp' | LC_ALL=C sort | while read -r file; do
    header=${file%.cpp}.h
    [ -f "$header" ] || header=
    echo "$(cat .clang-tidy "$file" $header | sha256sum | cut -c1-32)  $file"
  done)
}

# tidy_changed : the sources that were changed since they were recorded.
tidy_changed() { tidy_sums | LC_ALL=C sort | LC_ALL=C comm -23 - <(LC_ALL=C sort "$source/scripts/tidy.sums" 2>/dev/null) | sed 's/^[0-9a-f]*  //'; }

# check_tidy BUILD : runs clang-tidy on what changed; what it says, but of the code that Qt's compilers write, is an error.
check_tidy() {
  local build=$1 changed said
  changed=$(tidy_changed)
  [ -z "$changed" ] && return 0
  said=$(cd "$source" && echo "$changed" | xargs -P 2 -n 4 clang-tidy -p "$build" --quiet 2>/dev/null | { grep -E 'warning:|error:' || true; } | { grep -v '_autogen/' || true; } | sort -u)
  [ -z "$said" ] && return 0
  printf 'clang-tidy:\n%s\n' "$said" >&2
  return 1
}
