#!/usr/bin/env bash
# formes.sh PROGRAM              draws the typed forms again: docs/formes/*.svg from docs/formes/*.zof
# formes.sh --verifier PROGRAM   fails if a drawing of docs/formes is not what the program draws today
set -euo pipefail
verifier=
[ "$1" = --verifier ] && { verifier=oui; shift; }
programme=$(realpath "$1")
formes=$(cd "$(dirname "$0")/../docs/formes" && pwd)
atelier=$(mktemp -d)
trap 'rm -rf "$atelier"' EXIT
mkdir "$atelier/dessins"
for donnees in "$formes"/*.zof; do
  nom=$(basename "$donnees" .zof)
  cp "$donnees" "$atelier/"
  (cd "$atelier" && "$programme" "$nom.zof" >/dev/null) || { echo "refused: $nom.zof"; tail -n 5 "$atelier/$nom.err"; exit 1; }
  # CERCLE_3.svg and CERCLE_3_D.svg of a run become cercle.svg and cercle_D.svg: the rank says nothing here.
  for dessin in "$atelier/Svg_$nom"/*.svg; do
    sans_rang=$(basename "$dessin" | sed -E 's/_[0-9]+(_D)?\.svg$/\1.svg/')
    suffixe=
    [[ $sans_rang == *_D.svg ]] && suffixe=_D
    section=${sans_rang%.svg}
    section=${section%_D}
    mv "$dessin" "$atelier/dessins/${section,,}$suffixe.svg"
  done
done
[ -n "$verifier" ] || { rm -f "$formes"/*.svg; cp "$atelier"/dessins/*.svg "$formes/"; }
mkdir "$atelier/presents"
cp "$formes"/*.svg "$atelier/presents/"
diff -rq "$atelier/presents" "$atelier/dessins" || { echo 'Drawings that are not current: scripts/formes.sh PROGRAM'; exit 1; }
# The page shows every one of them, and nothing else.
diff <(grep -oE 'formes/[a-z_]+(_D)?\.svg' "$formes/../formes.md" | sed 's|formes/||' | sort -u) \
  <(cd "$atelier/dessins" && ls | sort -u) || { echo 'docs/formes.md does not show these drawings'; exit 1; }
