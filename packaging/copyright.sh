#!/bin/sh
# Writes the copyright file of the package: the own head, then the notices of what is compiled in, as the
# Debian packages of these libraries carry them.
#     packaging/copyright.sh PACKAGE... > copyright
set -eu
cat "$(dirname "$0")/copyright.kopf"
for package in "$@"; do
    notice=/usr/share/doc/$package/copyright
    [ -f "$notice" ] || { echo "copyright.sh: no notice of $package" >&2; exit 1; }
    printf '\n----- %s -----\n\n' "$package"
    cat "$notice"
done
