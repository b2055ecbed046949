#!/usr/bin/env bash
# etat_modules.sh BUILD: fails on any writable object of the libraries that is not the record of a module.
# A run starts by assigning fresh records; state outside them would leak from one run to the next.
set -euo pipefail
cd "$(dirname "$0")/.."
permis=$(sed 's/#.*//' scripts/etats_permis.txt | tr -s ' \n' '\n' | sed '/^$/d' | sort -u)
# Tables of constants that hold addresses stand in .data.rel.ro: they are written by the loader alone.
trouves=$(find "$1/src" -name '*.a' -print0 | xargs -0 nm --format=sysv --defined-only --demangle 2>/dev/null |
  awk -F'|' '$3 ~ /^ *[bBdDgGsSC] *$/ && $7 !~ /^\.data\.rel\.ro/ { sub(/ +$/, "", $1); print $1 }' |
  grep -v -E '^(vtable|typeinfo|VTT|guard variable for|DW\.ref)|^\.' | sort -u)
# An unnamed namespace and the class of a member are not part of the record's name.
inconnus=$(printf '%s\n' "$trouves" | sed 's/.*:://' | sort -u | comm -23 - <(printf '%s\n' "$permis"))
if [ -n "$inconnus" ]; then
  printf 'Writable objects that are no module record (scripts/etats_permis.txt):\n%s\n' "$inconnus"
  exit 1
fi
manquants=$(printf '%s\n' "$trouves" | sed 's/.*:://' | sort -u | comm -13 - <(printf '%s\n' "$permis"))
if [ -n "$manquants" ]; then
  printf 'Listed records that no library holds:\n%s\n' "$manquants"
  exit 1
fi
printf '%s\n' "$permis" | wc -l | xargs printf '%s module records, no other state\n'
