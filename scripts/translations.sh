#!/usr/bin/env bash
# Brings the files of translations up to what the sources say: scripts/translations.sh
# New texts come in as unfinished, those that are gone go; a test fails on what is unfinished. English holds plural forms only.
set -euo pipefail
source=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$source"
tool=$(command -v lupdate || echo /usr/lib/qt6/bin/lupdate)
for language in de fr es; do
  "$tool" -silent -no-obsolete -locations none -I src -source-language en -target-language $language \
    src resources/interface -ts resources/translations/tessaro_$language.ts 2>&1 | grep -v 'Qualifying with unknown' || true
done
"$tool" -silent -no-obsolete -pluralonly -locations none -I src -source-language en -target-language en \
  src resources/interface -ts resources/translations/tessaro_en.ts 2>&1 | grep -v 'Qualifying with unknown' || true
