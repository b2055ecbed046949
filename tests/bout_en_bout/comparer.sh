#!/usr/bin/env bash
# comparer.sh ZOF EXAMPLE: runs the program on a copy of the example and compares all that it writes with references/.
set -u
zof=$1
exemple=$2
ici=$(cd "$(dirname "$0")" && pwd)
references=$ici/references/$exemple
sortie=$(mktemp -d)
trap 'rm -rf "$sortie"' EXIT
cp "$ici/../../examples/$exemple/$exemple.zof" "$sortie/"
cd "$sortie" || exit 1
"$zof" "$exemple.zof" >console 2>erreurs
echo $? >statut
fautes=0

# What rounding leaves of a zero hangs on the last bit of the machine's mathematical library: it counts as zero.
sans_residus() { LC_ALL=C sed -E 's/[ -]?0\.[0-9]+E-(1[3-9]|[2-9][0-9])/ 0/g' "$1"; }

[ -s erreurs ] && { echo "standard error stream:"; cat erreurs; fautes=1; }
rm erreurs "$exemple.zof"

[ -f "$references/REVUE.md" ] || { echo "no review sheet: $references/REVUE.md"; exit 1; }
# The style files and the script that a note embeds are compared apart: by their names, not by their text.
sed -i -e '/<style/,/<\/style>/{/<\/\?style/!d}' -e '/<script/,/<\/script>/{/<\/\?script/!d}' "$exemple.html"
# The hundreds of searches of an interaction diagram make a trace of megabytes: its head is compared.
sed -i '401,$d' "$exemple.tra"
while read -r f; do
  [ "$f" = ./REVUE.md ] && continue
  if [ ! -f "$references/$f" ]; then echo "not in the references: $f"; fautes=1; continue; fi
  [ -f "$f" ] || { echo "not written: $f"; fautes=1; continue; }
  diff -a <(sans_residus "$references/$f") <(sans_residus "$f") >differences || { echo "differs: $f"; head -n 10 differences; fautes=1; }
done < <({ (cd "$references" && find . -type f); find . -type f ! -name differences; } | sort -u)
exit $fautes
