#!/bin/sh
# SPDX-License-Identifier: MIT
# Sessions through the program: those of the examples are played on a fresh document and rendered, bad ones are refused.
# play_test.sh VAGREL FOLDER
vagrel=$1 sessions=$2
folder=$(mktemp -d) && cd "$folder" || exit 1
trap 'rm -rf "$folder"' EXIT
failed=0
fail() {
    echo "FAILED: $*"
    failed=1
}

"$vagrel" new --mode drawing --size 210x148 -o drawing.json
"$vagrel" new --mode labelling --size 100x60 -o labelling.json
for session in "$sessions"/*.jsonl; do
    name=$(basename "$session" .jsonl)
    sheet=drawing.json
    grep -q '^# On a label' "$session" && sheet=labelling.json
    "$vagrel" play $sheet "$session" -o "$name.json" --trace >"$name.trace" || fail "$name was not played"
    "$vagrel" render "$name.json" -o "$name.svg" || fail "$name was not rendered"
    "$vagrel" play $sheet "$session" -o again.json || fail "$name was not played again"
    cmp "$name.json" again.json || fail "$name ends in two ways"
    grep -q '^  = eaSelection edPickPoint$' "$name.trace" || fail "$name: the trace tells no state"
done
[ "$(grep -c '<rect\|<ellipse\|<circle\|<poly\|<path\|<line' house.svg)" -ge 12 ] || fail 'the house lacks something'

# refuse TEXT LINE: exit code 1, the file, the line and TEXT on standard error, and no output file.
refuse() {
    printf '\n%s\n' "$2" >bad.jsonl
    "$vagrel" play drawing.json bad.jsonl -o bad.json 2>err
    [ $? -eq 1 ] || fail "$2: exit code"
    grep -qF "bad.jsonl: line 2: $1" err || fail "$2: $(cat err)"
    [ ! -e bad.json ] || fail "$2 wrote a document"
}
refuse '' '{"op":'
refuse 'the number of items is 0, not 1' '{"op":"expect","items":1}'
"$vagrel" play drawing.json none.jsonl 2>err && fail 'a missing session was played'
grep -qF none.jsonl err || fail "no name: $(cat err)"
exit $failed
