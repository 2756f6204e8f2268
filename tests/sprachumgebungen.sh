#!/usr/bin/env bash
# Files and reports do not depend on the user's locale: each test program given passes under four of them,
# and the command-line tool writes the same bytes.
#     sprachumgebungen.sh CLI BEISPIELE TESTPROGRAMM...
set -euo pipefail
cli=$1
beispiele=$2
shift 2

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
for locale in de_DE en_US tr_TR; do
    localedef -i "$locale" -f UTF-8 --no-archive "$folder/$locale.UTF-8"
done
export LOCPATH=$folder

reference=
for locale in C de_DE.UTF-8 en_US.UTF-8 tr_TR.UTF-8; do
    export LC_ALL=$locale
    for program in "$@"; do
        "$program" --gtest_brief=1 >"$folder/log" 2>&1 || { echo "$program fails under $locale"; cat "$folder/log"; exit 1; }
    done
    bytes=$({ for output in text rtf json; do
        "$cli" rechne --ausgabe "$output" --trotz-hinweisen --material "$beispiele/Plattenwerte.dat" "$beispiele"/*.rsw || true
    done; "$cli" felder --ausgabe json; } | sha256sum)
    [[ -z "$reference" || "$bytes" == "$reference" ]] || { echo "other bytes under $locale"; exit 1; }
    reference=$bytes
done
