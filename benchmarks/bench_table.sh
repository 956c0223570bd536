#!/usr/bin/env bash
# Two thousand projects from a table against a loop over cookiecutter on the same tree, with the same names and values:
# bench_table.sh TESSARO [PROJECTS-OF-THE-LOOP]
# The loop makes fewer unless told otherwise, for it takes minutes; what is compared is the time for one project.
set -euo pipefail
tessaro=$1
looped=${2:-100}
projects=2000
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export HOME=$work/home
mkdir -p "$HOME" "$work/out" "$work/looped"
"$tessaro" template new Bench >/dev/null
files=$(find "$HOME" -name Bench.tzt)/Files
cutter=$work/cutter/'{{cookiecutter.project}}'
mkdir -p "$cutter"
for folder in "01 Script" "02 Footage/A Camera" "02 Footage/B Camera" "03 Sound" "04 Project" "05 Review" "06 Deliverables"; do
  mkdir -p "$files/$folder" "$cutter/$folder"
done
printf '# {Project}\n\nClient: {Client}\n' >"$files/04 Project/{Project} Notes.md"
printf '# {{cookiecutter.project}}\n\nClient: {{cookiecutter.client}}\n' >"$cutter/04 Project/{{cookiecutter.project}} Notes.md"
for i in $(seq 10); do
  printf 'camera,roll,clip\n%.0s' $(seq 20) | tee "$files/02 Footage/A Camera/Report $i.csv" >"$cutter/02 Footage/A Camera/Report $i.csv"
done
printf '{"project": "P", "client": "C"}\n' >"$work/cutter/cookiecutter.json"
printf '{"fillNames": true, "texts": ["*.md"]}' | "$tessaro" template rules Bench --set -
{
  echo "Client,Template"
  for i in $(seq $projects); do echo "Client $i,Bench"; done
} >"$work/table.csv"
now() { date +%s%N; }
start=$(now)
"$tessaro" create --from "$work/table.csv" --in "$work/out" >/dev/null
table=$(( $(now) - start ))
start=$(now)
for i in $(seq "$looped"); do
  cookiecutter --no-input -o "$work/looped" "$work/cutter" project="P$i" client="Client $i" >/dev/null
done
loop=$(( $(now) - start ))
made=$(find "$work/out" -name '*Notes.md' | wc -l)
awk -v t=$table -v n=$projects -v l=$loop -v m="$looped" -v made="$made" 'BEGIN {
  printf "%d projects from a table (%d made, 8 folders and 11 files each): %.2f ms for one; a loop over cookiecutter (%d): %.1f ms; ratio %.4f\n",
    n, made, t / n / 1e6, m, l / m / 1e6, (t / n) / (l / m) }'
