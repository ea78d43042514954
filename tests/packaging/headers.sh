#!/bin/bash
# Compiles each public header alone, as C and as C++.   usage: headers.sh INCLUDEDIR
set -euo pipefail
cd "$1"
warnings=(-Wall -Wextra -Wconversion -Wshadow -Wundef -pedantic -Werror)
failed=0 count=0
while read -r header; do
    count=$((count + 1))
    include="#include <$header>"
    "$CC" -std=c99 -Wstrict-prototypes "${warnings[@]}" -I. -fsyntax-only -x c - <<<"$include" || failed=1
    "$CXX" -std=c++11 "${warnings[@]}" -I. -fsyntax-only -x c++ - <<<"$include" || failed=1
done < <(find -- * -name '*.h')
echo "$count headers compiled alone as C99 and C++11"
((count > 0 && failed == 0))
