#!/bin/sh
# SPDX-License-Identifier: MIT
# The program from outside: exit codes, one line on standard error, targets that stay as they were.
vagrel=$1
examples=$2
folder=$(mktemp -d) && cd "$folder" || exit 1
trap 'rm -rf "$folder"' EXIT
failed=0

fail() {
    echo "FAILED: $*"
    failed=1
}

# run CODE TEXT ARGUMENT...: the exit code, and a line of standard error that holds TEXT (none for exit code 0).
run() {
    code=$1 text=$2
    shift 2
    # A sanitizer's search for leaks takes longer than all else: those that succeed have it.
    ASAN_OPTIONS=$ASAN_OPTIONS:detect_leaks=$((code == 0)) "$vagrel" "$@" >out 2>err
    got=$?
    [ $got -eq "$code" ] || fail "$*: exit code $got, not $code: $(cat err)"
    [ "$(wc -l <err)" -eq $((code > 0)) ] || fail "$*: not one line: $(cat err)"
    grep -qF -- "$text" err || [ "$code" -eq 0 ] || fail "$*: no \"$text\" in: $(cat err)"
}

run 0 '' new --mode flowchart --units cm -o doc.json
run 0 '' info doc.json --json
grep -qF '"Mode": "flowchart"' out || fail "info --json does not tell the mode: $(cat out)"
run 0 '' new --mode drawing --units m --scale 50 --size 420x297 -o plan.json
run 0 '' info plan.json
grep -qF '420 x 297 mm (User)' out || fail "info does not tell the paper"
run 0 '' render plan.json --mode px --factor 2 --ids -o plan.svg
run 0 '' render plan.json --mode px --factor 2 --ids
cmp -s out plan.svg || fail 'standard output and file differ'
run 0 '' render plan.json -o /dev/null
run 0 '' --help

# Wrong use.
run 2 'command is missing'
run 2 'nonsense' nonsense
run 2 '--output' new
run 2 '--loud' info plan.json --loud
run 2 'labelling, flowchart, drawing, interactive' new --mode x -o no.json
run 2 'mm, inch, cm, dm, m, ft, yd' new --units 2 -o no.json
run 2 'unit, plain, factor, px' render plan.json --mode svg
run 2 'mm, inch or cm' new --units m -o no.json
run 2 'only drawings' new --scale 5 -o no.json
run 2 'between 1:1 and 1:31055124703214' new --mode drawing --scale 31055124703215 -o no.json
for scale in 0 1.5 99999999999999999999; do
    run 2 'whole number' new --mode drawing --scale $scale -o no.json
done
for size in 10 4x10 nanxnan 10x10x; do
    run 2 "\"$size\"" new --size $size -o no.json
done
for factor in 0 nan 1e300; do
    run 2 'no number from' render plan.json --factor $factor
done
[ ! -e no.json ] || fail 'wrong use wrote a file'

# Both forms, there and back.
run 0 '' convert plan.json plan.vgr
run 0 '' convert plan.vgr back.json
cmp -s plan.json back.json || fail 'converting there and back changed the document'
run 2 '.vgr' convert plan.json plan.txt
head -c 100 plan.vgr >short.vgr
run 1 'short.vgr: unexpected end' info short.vgr

# What one of the forms has no place for is told, and told once.
sed 's/"NumLabels": 1/"NumLabels": 7/' plan.json >labels.json
"$vagrel" convert labels.json labels.vgr 2>err || fail 'convert refuses a number of labels'
grep -qF 'labels (7) is lost' err && [ "$(wc -l <err)" -eq 1 ] || fail "convert loses labels in silence: $(cat err)"
run 0 '' convert labels.json same.json

iconv -f UTF-8 -t UTF-16 plan.json >wide.json
run 0 '' convert wide.json back.json
cmp -s plan.json back.json || fail 'a document in UTF-16 was not read as the same'

# What stands on a document: counts, bounds, identifiers that are no XML.
cat >items.json <<'END'
{"Version": 3200, "EditorMode": 2, "Measures": {"LabelWidth": 100, "LabelHeight": 100, "Rows": 1, "Columns": 1, "DrawScale": 1},
 "Items": [{"Type": 2, "ID": "a&\"<>b", "InID": 1, "Options": {"Visible": true, "Export": true},
            "Points": [{"X": 20000.125, "Y": 5}, {"X": 10, "Y": 20.5}]},
           {"Type": 8, "InID": 2, "Points": [{"X": 30, "Y": 30}, {"X": 40, "Y": 40}]}]}
END
run 0 '' info items.json
grep -qF 'Line: 1' out && grep -qF 'bounds   (10, 5) to (20000.125, 40) mm' out || fail "info: $(cat out)"
run 0 '' info items.json --json
grep -qF '"Items": 2' out || fail "info --json does not count: $(cat out)"
run 0 '' convert items.json items.vgr
run 0 '' convert items.vgr back.json
grep -qF '"X": 20000.125' back.json || fail 'a point far out moved'
run 0 '' render items.json --ids -o ids.svg
grep -qF ' id="a&amp;&quot;&lt;&gt;b" ' ids.svg || fail "render --ids: $(cat ids.svg)"
if command -v xmllint >/dev/null; then xmllint --noout ids.svg || fail 'an identifier broke the SVG'; fi

# Barcodes.
run 0 '' barcode --list
[ "$(wc -l <out)" -eq 26 ] || fail 'barcode --list does not name 26 kinds'
for kind in CODE128AUTO DATAMATRIX PDF417; do
    run 0 '' barcode $kind 1234567 --module 0.4 --height 3 -o code.svg
    grep -qF '<rect' code.svg || fail "$kind: no bars"
done
run 0 '' barcode EAN13 590123412345 --check --json
grep -qF '"Code": "5901234123457"' out && grep -qF '"CheckDigits": "7"' out || fail "EAN13: $(cat out)"
grep -qF '<svg' out && fail '--json alone also wrote the picture'
run 0 '' barcode QR hello --json -o code.svg
[ "$(grep -cE '^\s*"[01]{21}",?$' out)" -eq 21 ] || fail "QR: no 21 rows: $(cat out)"
run 0 '' barcode CODE39 A --no-text
grep -qF '<text' out && fail '--no-text has a text'
run 1 'EAN13 takes 13 digits, not 12' barcode EAN13 590123412345
run 1 'EAN8 takes 8 digits at most, not 9' barcode EAN8 123456789 --check
run 1 'CODE39 does not take "é"' barcode CODE39 café
run 1 'CODE128AUTO does not take "€"' barcode CODE128AUTO '5 €'
run 1 'DATAMATRIX does not take "€"' barcode DATAMATRIX '5 €'
run 1 'QR cannot hold this text' barcode QR "$(printf '%03000d' 0)x"
run 1 'PDF417 does not take "é"' barcode PDF417 'café'
run 1 'PDF417 needs a text' barcode PDF417 ''
run 2 'none of EAN13' barcode EAN14 1
run 2 'TEXT' barcode EAN13
run 2 'only linear' barcode QR x --check
run 2 'takes 0.19 mm or more' barcode QR x --module 0.1
run 1 'png' barcode QR x -o code.gif
run 0 '' barcode EAN8 1234567 --check -o code.pdf

# Labels from data.
run 0 '' new -o label.json
printf 'Name;Copies\n"A; b";2\nC;0\nD;1\n' >data.csv
run 1 'nothing named "x"' merge label.json -o m.svg --answer x=1
run 0 '' merge label.json --csv data.csv -o m.svg
grep -qF '3 labels on 1 pages' out || fail "merge counts wrongly: $(cat out)"
run 0 '' merge label.json --csv data.csv --repeat Copies -o m.svg
grep -qF '3 labels on 1 pages' out || fail "a record without copies was printed: $(cat out)"
"$vagrel" merge label.json --csv - -o m.pdf <data.csv >out 2>err || fail "no CSV from standard input: $(cat err)"
run 0 '' merge label.json --csv data.csv --copies 20 --first-cell 7,2 -o m.png --dpi 20
grep -qF '60 labels on 4 pages' out || fail "pages are counted wrongly: $(cat out)"
[ -s m-0004.png ] && [ ! -e m-0005.png ] || fail 'not four pictures'
run 0 '' merge label.json --csv data.csv --copies 20 --pages 2-3 -o n.svg
[ -s n-0002.svg ] && [ -s n-0003.svg ] && [ ! -e n-0001.svg ] || fail 'not pages 2 and 3'
run 1 'no range of the 1 pages' merge label.json --csv data.csv --pages 2 -o no.svg
run 1 '7 rows and 3 columns' merge label.json --csv data.csv --first-cell 8,1 -o no.svg
run 1 'no field "Copy"' merge label.json --csv data.csv --repeat Copy -o no.svg
run 1 'none.csv' merge label.json --csv none.csv -o no.svg
run 1 'extension' merge label.json --csv data.csv -o no.xps
printf 'Name\n"A\nB\n' >quote.csv
run 1 'line 2 is not closed' merge label.json --csv quote.csv -o no.svg
printf 'Name\n' >empty.csv
run 1 'no records' merge label.json --csv empty.csv -o no.svg
printf '{"rows":[{"a":1,"n":2},{"a":2,"n":0}],"more":[]}' >data.json
run 0 '' merge label.json --json data.json --repeat n -o m.svg
grep -qF '2 labels on 1 pages' out || fail "JSON records are counted wrongly: $(cat out)"
run 1 'only rows, more' merge label.json --json data.json --source x -o no.svg
run 2 '--table' merge label.json --sqlite x.db -o no.svg
run 0 '' fields label.json --csv data.csv
grep -qF 'Copies (text)' out || fail "fields does not tell the columns: $(cat out)"
run 2 'missing' fields
printf 'Kind;Name;Maker;Size;Price;EAN;Link\nTee;Assam;;;1;%s\nTee;Assam;;;1;%s\n' ';a' '40063813339;b' >codes.csv
run 0 '' merge "$examples/price_label.json" --csv codes.csv --copies 24 --pages 1 -o codes.svg
run 1 'has no symbol for "40063813339"' merge "$examples/price_label.json" --csv codes.csv -o no.svg

# Pictures.
for format in pdf png bmp; do
    run 0 '' render plan.json --dpi 30 -o plan.$format
    [ -s plan.$format ] || fail "no plan.$format"
done
run 1 '32767 pixels' render plan.json --dpi 4800 -o no.png
run 1 'none of svg, pdf' render plan.json -o no.gif

# Bad input; what stands at the target stays.
echo keep >target
run 1 'No such file' render none.json -o target
run 1 'directory' info .
printf '{"Items": [{"Type": 77}]}' >bad.json
run 1 'bad.json: Items[0]: Unknown item type 77' render bad.json -o target
printf '{"Data": {"SaveJson": true, "DataJson": "a\\nb"}, "Items": 5}' >bad.json
run 1 'bad.json: Items' render bad.json -o target
head -c 300 plan.json >bad.json
run 1 'bad.json: ' render bad.json -o target
[ "$(cat target)" = keep ] || fail 'a target was touched'
mkdir out.svg
run 1 'out.svg' render plan.json -o out.svg
run 1 'none/out.svg' render plan.json -o none/out.svg
run 1 '/dev/full' render plan.json -o /dev/full
run 1 '/dev/full' new -o /dev/full
[ -c /dev/full ] || fail '/dev/full was replaced'
if "$vagrel" render plan.json >/dev/full 2>err; then fail 'a full standard output went unnoticed'; fi
grep -qF 'standard output' err || fail "standard output is not named: $(cat err)"
if [ "$(id -u)" -ne 0 ]; then
    mkdir locked && chmod a-w locked target
    run 1 'locked/out.svg' render plan.json -o locked/out.svg
    run 1 'target' render plan.json -o target
fi
[ -z "$(find . -name '*.??????' ! -name '*.json' ! -name '*.svg')" ] || fail 'a temporary file stayed'
exit $failed
