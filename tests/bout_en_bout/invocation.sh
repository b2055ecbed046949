#!/usr/bin/env bash
# invocation.sh ZOF: how the program is called: arguments, files that can't be read or written, exit statuses.
set -u
zof=$1
sortie=$(mktemp -d)
trap 'chmod -R u+w "$sortie"; rm -rf "$sortie"' EXIT
cd "$sortie" || exit 1
fautes=0

# cas NAME STATUS PATTERN ARGUMENT...: status and a line of the console; the standard error stream stays empty.
cas() {
  local nom=$1 statut=$2 motif=$3
  shift 3
  timeout 20 "$zof" "$@" >console 2>erreurs </dev/null
  local rendu=$?
  [ "$rendu" -eq "$statut" ] || { echo "$nom: status $rendu, not $statut"; fautes=1; }
  LC_ALL=C grep -a -q -e "$motif" console || { echo "$nom: no line '$motif' in:"; head -c 600 console; fautes=1; }
  [ -s erreurs ] && { echo "$nom: standard error stream:"; head -c 600 erreurs; fautes=1; }
  return 0
}

e_aigu=$(printf '\351')
printf 'ZOF\nFIN_\n' >a.zof
cas 'version alone' 0 '^ *7\.06$' -v
cas 'version and a file' 0 'FIN DE L EXECUTION' -v a.zof
cas 'a minimal file' 0 'FIN DE L EXECUTION' a.zof
cas 'no argument' 1 "ERREUR : ouverture du fichier de donn${e_aigu}es impossible:"
cas 'a name under four characters' 1 "ouverture du fichier de donn${e_aigu}es impossible:" abc
cas 'a missing file' 1 "ouverture du fichier de donn${e_aigu}es impossible:absent.zof" absent.zof
mkdir d.zof
cas 'a directory' 1 "ouverture du fichier de donn${e_aigu}es impossible:d.zof" d.zof
cas 'another ending' 0 'FIN DE L EXECUTION' a.xyz
cas 'a name too long' 1 'Nom de fichier ou de repertoire trop long' "$(printf '%0256d' 0).zof"

mkdir listing txt html
for f in listing/a.err txt/a.txt html/a.html; do
  cp a.zof "$(dirname $f)"
  mkdir "$f"
done
cas 'a listing that is a directory' 1 'ERREUR : ouverture du fichier des Erreurs impossible' listing/a.zof
cas 'a text note that is a directory' 1 'ERREUR : ouverture du fichier NDC texte impossible' txt/a.zof
cas 'an HTML note that is a directory' 1 'ERREUR : ouverture du fichier NDC html impossible' html/a.zof

# Permissions bind everybody but root: as root, the program runs as nobody, from a place that nobody reaches.
chmod 755 "$sortie"
mkdir fige && cp a.zof fige && chmod 555 fige
cp a.zof ferme.zof && chmod 000 ferme.zof
programme=$zof
if [ "$(id -u)" -eq 0 ]; then
  cp "$zof" zof_de_tous && chmod 755 zof_de_tous
  printf '#!/bin/sh\nexec setpriv --reuid=65534 --regid=65534 --clear-groups "%s/zof_de_tous" "$@"\n' "$sortie" >en_personne
  chmod 755 en_personne
  zof=$sortie/en_personne
fi
cas 'a read-only folder' 1 'ERREUR : ouverture du fichier des Erreurs impossible' fige/a.zof
cas 'an unreadable file' 1 "ouverture du fichier de donn${e_aigu}es impossible:ferme.zof" ferme.zof
zof=$programme

# A full disk: the run ends with 1 and one line that names the file.
if [ -e /dev/full ]; then
  "$zof" a.zof >/dev/full 2>erreurs
  [ $? -eq 1 ] && [ "$(wc -l <erreurs)" -eq 1 ] || { echo 'a full console: status or message'; fautes=1; }
  mkdir plein && cp a.zof plein && ln -s /dev/full plein/a.txt
  "$zof" plein/a.zof >/dev/null 2>erreurs
  [ $? -eq 1 ] && grep -q 'plein/a.txt' erreurs || { echo 'a full disk under the note: status or message'; fautes=1; }
fi

# Closed standard streams: no file of the run takes their place, and what the console lost is told by the status.
"$zof" a.zof <&- >&- 2>erreurs
[ $? -eq 1 ] && grep -q 'la console' erreurs || { echo 'a closed console: status or message'; fautes=1; }
LC_ALL=C grep -a -q -e 'FIN DE L EXECUTION' a.err && { echo 'a closed console: its lines stand in the listing'; fautes=1; }

# A reader that goes away must not kill the run.
yes '$ commentaire' | head -n 20000 | sed '1s/^/ZOF\n/' >tube.zof
printf 'FIN_\n' >>tube.zof
{ "$zof" tube.zof 2>erreurs; echo $? >statut; } | head -n 1 >/dev/null
[ "$(cat statut)" -eq 1 ] || { echo "a closed pipe: status $(cat statut)"; fautes=1; }

# Bytes of all kinds: a status of the program, in time.
for i in 1 2 3 4 5; do
  head -c 20000 /dev/urandom >alea.zof
  timeout 20 "$zof" alea.zof >console 2>erreurs
  rendu=$?
  [ $rendu -le 1 ] || { cp alea.zof /tmp/alea_en_echec.zof; echo "random bytes: status $rendu, kept as /tmp/alea_en_echec.zof"; fautes=1; }
done
head -c 10000000 /dev/zero | tr '\0' 'x' >longue.zof
cas 'ten megabytes of one line' 0 'ERREUR : Le fichier doit commencer par ZOF' longue.zof
: >vide.zof
cas 'an empty file' 0 'FIN PREMATUREE  DU FICHIER DE DONNEES' vide.zof

# The drawing directory of a run is its own; a link of that name is removed, not followed.
mkdir ailleurs && touch ailleurs/precieux && rm -rf Svg_a && ln -s ../ailleurs Svg_a && ln -sfn ailleurs Svg_a
cas 'a link in place of the drawing directory' 0 'FIN DE L EXECUTION' a.zof
[ -e ailleurs/precieux ] || { echo 'a file behind a link was removed'; fautes=1; }
[ -d Svg_a ] && [ ! -L Svg_a ] || { echo 'the drawing directory was not made anew'; fautes=1; }

# Drawings that can't be written: the run goes on to its end, which tells the first of them.
cat >dessin.zof <<'FIN'
ZOF
MATE BETON C30 TITR 'Beton' FCK 30. PREC NON FIN_MATE
SECT P TITR 'Poutre' CONT C MATE C30 RECT HAUT 0.6 LARG 0.3 FIN_RECT FIN_CONT FIN_SECT
EDIT SECT P
TITR 'apres le dessin'
FIN_
FIN
cas 'a section drawn' 0 'FIN DE L EXECUTION' dessin.zof
[ "$(ls Svg_dessin | tr '\n' ' ')" = 'P_1.svg P_1_D.svg ' ] || { echo 'drawings of a section:'; ls Svg_dessin; fautes=1; }
rm -rf Svg_dessin && touch Svg_dessin
"$zof" dessin.zof >console 2>erreurs
[ $? -eq 1 ] && [ "$(wc -l <erreurs)" -eq 1 ] && grep -q 'P_1.svg' erreurs || { echo 'a file in place of the drawing directory: status or message'; fautes=1; }
LC_ALL=C grep -a -q 'apres le dessin' dessin.txt || { echo 'a run without drawings did not go on'; fautes=1; }
[ ! -s Svg_dessin ] || { echo 'a file in place of the drawing directory was written to'; fautes=1; }
exit $fautes
