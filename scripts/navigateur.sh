#!/usr/bin/env bash
# navigateur.sh PROGRAM [CAPTURES]     runs the program on every example, then looks at the notes in a browser
# navigateur.sh NOTE.html... [CAPTURES] looks at these notes
# Fails on a console error, a broken link, a summary that does not open and close, a text that can't be seen.
# Pictures of the notes, on the screen and on paper, are left in CAPTURES (build/captures).
set -euo pipefail
racine=$(cd "$(dirname "$0")/.." && pwd)
[ -x "${CHROMIUM:-/usr/bin/chromium}" ] || "$racine/scripts/paquets.sh" chromium
command -v node >/dev/null && command -v npm >/dev/null || "$racine/scripts/paquets.sh" nodejs npm
outils=$racine/tests/navigateur
[ -d "$outils/node_modules/playwright-core" ] || (cd "$outils" && npm ci --ignore-scripts --no-audit --no-fund --loglevel=error)

notes=()
programme=
captures=$racine/build/captures
for argument in "$@"; do
  if [[ $argument == *.html ]]; then
    notes+=("$argument")
  elif [ -f "$argument" ] && [ -x "$argument" ]; then
    programme=$(realpath "$argument")
  else
    captures=$argument
  fi
done

if [ -n "$programme" ]; then
  atelier=$(mktemp -d)
  trap 'rm -rf "$atelier"' EXIT
  for donnees in "$racine"/examples/*/*.zof; do
    nom=$(basename "$donnees" .zof)
    mkdir "$atelier/$nom"
    cp "$donnees" "$atelier/$nom/"
    (cd "$atelier/$nom" && "$programme" "$nom.zof" >/dev/null)
    notes+=("$atelier/$nom/$nom.html")
  done
fi

node "$outils/autocontrole.mjs"
node "$outils/notes.mjs" "$captures" "${notes[@]}"
echo "Pictures: $captures"
