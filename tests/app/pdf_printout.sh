#!/usr/bin/env bash
# The printouts written as real PDF files and read back with pdftotext:
#   pdf_printout.sh QUILMAR WORKDIR
set -euo pipefail
quilmar=$1
dir=$2
mkdir -p "$dir"
cd "$dir"
"$quilmar" sample 4 -o lots.map

fail() { echo "FAIL: $*" >&2; exit 1; }
has() { grep -qF -- "$2" <<<"$1" || fail "\"$2\" missing from: $1"; }
lacks() { ! grep -qF -- "$2" <<<"$1" || fail "\"$2\" should not be in: $1"; }

# The page with the default options: caption with its units, heading, list with a New row.
"$quilmar" plot --page -o page.pdf lots.map
page=$(pdftotext -layout page.pdf -)
has "$page" "Scale = 1:"
has "$page" "(Feet)"
has "$page" "This is a sample map for two lots."
has "$page" "New"
has "$page" "Back to pob"

# An empty option list turns everything off: no list, no suffix, no heading.
"$quilmar" plot --page --options "" -o bare.pdf lots.map
bare=$(pdftotext -layout bare.pdf -)
has "$bare" "Scale = 1:"
lacks "$bare" "(Feet)"
lacks "$bare" "New"
lacks "$bare" "sample map"

# A rewrite goes through a temporary file: the target is replaced, never left half written.
"$quilmar" plot --page --options reference-list,description --paper a4 -o page.pdf lots.map
pdfinfo page.pdf | grep -q "A4" || fail "not A4"
ls -A | grep -v -e '^lots.map$' -e '^page.pdf$' -e '^bare.pdf$' -e '^data.pdf$' && fail "temporary file left behind"

# The data printout: heading, rows and "end".
"$quilmar" plot --data -o data.pdf lots.map
data=$(pdftotext -layout data.pdf -)
has "$data" "Distance"
has "$data" "L-R"
has "$data" "end"
echo "printouts ok"
