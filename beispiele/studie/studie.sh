#!/bin/sh
# Rechnet die Studie neu: beispiele/studie/studie.sh [Pfad zu rippenscheibe-cli]
# Legt Entwürfe, Rasterkurve, Bemessungstafel und Stückliste in den Ordner, der in AUSGABE steht (sonst ./ergebnis).
set -eu
ordner=$(cd "$(dirname "$0")" && pwd)
cli=${1:-rippenscheibe-cli}
aus=${AUSGABE:-ergebnis}
wand=$ordner/../zuganker.rsw
mkdir -p "$aus"

"$cli" lastfaelle neu "$wand" -o "$aus/lastfaelle.csv"
"$cli" hilft "$wand" -o "$aus/hilft.txt"
"$cli" lege-aus "$wand" --preise "$ordner/../Preise.csv" -o "$aus/entwuerfe.txt"
"$cli" variiere "$wand" --feld av1,av2=50:150:5 --ausgabe csv -o "$aus/abstand.csv"
"$cli" tafel "$wand" --groesste Fvk --zeilen Wandlaenge=2.5:5:0.625 --spalten av1,av2=50:150:25 --bis 60 -o "$aus/tafel.txt"
"$cli" tafel "$wand" --groesste Fvk --zeilen Wandlaenge=2.5:5:0.625 --spalten av1,av2=50:150:25 --bis 60 --ausgabe rtf -o "$aus/tafel.rtf"
"$cli" stueckliste "$wand" -o "$aus/stueckliste.txt"
