#!/usr/bin/env bash
# The differences that scenes are allowed may only become fewer: fails when the total rose since an earlier commit.
cd "$(dirname "$(readlink -f "$0")")/.."
set -euo pipefail
bad=0
for file in tests/scenes/budgets_draw.txt tests/scenes/budgets_smooth.txt; do
    total() { awk '!/^#/ && NF { sum += $2 } END { print sum + 0 }'; }
    before=$(total <"$file")
    while read -r commit; do
        earlier=$(git show "$commit:$file" | total)
        if awk -v now="$before" -v then="$earlier" 'BEGIN { exit !(now > then) }'; then
            echo "$file: the budgets rose from $earlier to $before at or after $commit"
            bad=1
        fi
        before=$earlier
    done < <(git log --format=%h -- "$file" 2>/dev/null)
done
[ $bad -eq 0 ] && echo "budgets: none rose"
exit $bad
