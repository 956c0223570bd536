#!/usr/bin/env bash
# Runs clang-tidy on the sources that were changed since they were last recorded, with the compile commands of build/dev, and
# records them when it has nothing to say.
set -euo pipefail
source=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$source/scripts/style.sh"
check_tidy "$source/build/dev"
tidy_sums >"$source/scripts/tidy.sums"
