#!/bin/sh
# Every path that the documents name exists, so that they cannot point a newcomer to what has moved.
# shellcheck disable=SC2016 # the backticks are the documents' own
cd "$(dirname "$0")/../.." || exit 2
passed=0
failed=0
for document in README.md CONTRIBUTING.md docs/*.md; do
    paths=$(sed -n '/^```/,/^```/!p' "$document" |
        grep -oE '`((TaveloDeskrig|tests|docs|simulated-mac|local-cloud|bench|fonts|icon|fuzz|report-samples|screens|scripts|cmake)(/[A-Za-z0-9_./-]+)?|run|test|Brewfile|\.ci/run|\.github/workflows/ci\.yml)`|\]\([^):]+\)' |
        sed 's/^`//; s/`$//; s/^](\(.*\))$/\1/' | sort -u)
    for path in $paths; do
        if [ -e "$path" ] || [ -e "$(dirname "$document")/$path" ]; then
            passed=$((passed + 1))
        else
            failed=$((failed + 1))
            echo "$document names $path, which does not exist"
        fi
    done
done
echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ] && [ "$passed" -gt 20 ]
