#!/usr/bin/env bash
# comparer_plans.sh ZOF EXAMPLE: runs the program on a copy of an example whose notes are too long for a reference, and
# compares every case of its listing and of its text note with references/EXAMPLE/plans.csv: the forces, and the plane
# to 1E-4 of each component.
set -u
zof=$1
exemple=$2
ici=$(cd "$(dirname "$0")" && pwd)
plans=$ici/references/$exemple/plans.csv
sortie=$(mktemp -d)
trap 'rm -rf "$sortie"' EXIT
cp "$ici/../../examples/$exemple/$exemple.zof" "$sortie/"
cd "$sortie" || exit 1
fautes=0
faute() { echo "$1"; fautes=1; }

[ -f "$ici/references/$exemple/REVUE.md" ] || faute "no review sheet"
"$zof" "$exemple.zof" >console 2>erreurs || faute "exit status $?"
[ -s erreurs ] && faute "standard error stream: $(cat erreurs)"
grep -q '</html>' "$exemple.html" || faute "the HTML note is not closed"
tail -n 1 console | grep -q '^FIN DE L EXECUTION' || faute "the console does not end as it should"

# The cases of the listing, as the data language wrote them: "EFFO G N 0.1000 MY 0.12000E-01 MZ 0.12000E-01 FIN_EFFO".
awk '$1 == "EFFO" { print $4 "," $6 "," $8 }' "$exemple.err" >cas
# The cases of the note: forces, result, and the first plane behind it.
LC_ALL=C awk '$2 == "Nx:" { n = $3; plan = 0 }
     $2 == "My:" { my = $3 }
     $2 == "Mz:" { mz = $3 }
     $2 ~ /^R.sultat$/ { issue = $4; plan = 1 }
     plan && $2 == "Ex:" { ex = $3 }
     plan && $2 == "Ry:" { ry = $3 }
     plan && $2 == "Rz:" { print issue "," n "," my "," mz "," ex "," ry "," $3; plan = 0 }' "$exemple.txt" >resultats

grep -v -e '^#' -e '^N,' "$plans" | paste -d, - cas resultats | awk -F, '
  function ecart(a, b) { a -= b; return a < 0 ? -a : a }
  function proche(a, b) { return a != "" && ecart(a, b) <= 1e-4 * (b < 0 ? -b : b) + 1e-8 }
  function refuser(quoi) { if (refus++ < 10) print "case " NR ": " quoi ": " $0 }
  {
    if (!proche($7, $1) || !proche($8, $2) || !proche($9, $3)) refuser("forces of the listing")
    if ($10 != "Equilibre") refuser("no equilibrium")
    if (!proche($11, $1) || !proche($12, $2) || !proche($13, $3)) refuser("forces of the note")
    if (!proche($14, $4) || !proche($15, $5) || !proche($16, $6)) refuser("plane")
  }
  END { if (refus) print refus " differences"; exit refus > 0 }' || fautes=1
attendus=$(grep -c -v -e '^#' -e '^N,' "$plans")
for f in cas resultats; do
  [ "$(wc -l <$f)" -eq "$attendus" ] || faute "$f: $(wc -l <$f) instead of $attendus"
done
exit $fautes
