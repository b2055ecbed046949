#!/usr/bin/env bash
# dessins.sh ZOF: every drawing of the examples and of docs/formes is valid SVG 1.1 by its document type, from the local catalogue.
# Status 77, skipped: the tools are not installed (scripts/verifier.sh installs them: libxml2-utils, w3c-sgml-lib).
set -u
zof=$1
racine=$(cd "$(dirname "$0")/../.." && pwd)
command -v xmllint >/dev/null && [ -d /usr/share/xml/w3c-sgml-lib/schema/dtd/REC-SVG11-20110816 ] || exit 77
sortie=$(mktemp -d)
trap 'rm -rf "$sortie"' EXIT
fautes=0
for donnees in "$racine"/examples/*/*.zof "$racine"/docs/formes/*.zof; do
  cp "$donnees" "$sortie/"
  (cd "$sortie" && "$zof" "$(basename "$donnees")" >/dev/null) || { echo "refused: $donnees"; fautes=1; }
done
nombre=$(find "$sortie" -name '*.svg' | wc -l)
[ "$nombre" -ge 38 ] || { echo "only $nombre drawings"; fautes=1; }
find "$sortie" -name '*.svg' -print0 | xargs -0 xmllint --noout --valid --nonet || fautes=1
# The check itself: an attribute that the document type does not know must not pass.
sed 's/<rect /<rect epaisseur="1" /' "$(find "$sortie" -name '*.svg' | head -n 1)" >"$sortie/faux.svg"
xmllint --noout --valid --nonet "$sortie/faux.svg" 2>/dev/null && { echo 'a false attribute was not seen'; fautes=1; }
exit $fautes
