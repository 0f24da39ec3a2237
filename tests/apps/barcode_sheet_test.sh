#!/bin/sh
# SPDX-License-Identifier: MIT
# A sheet with every kind of barcode, painted at 300 dpi and read by programs that others wrote: zbarimg and dmtxread.
vagrel=$1
sheet=$2
folder=$(mktemp -d) || exit 1
trap 'rm -rf "$folder"' EXIT
failed=0

"$vagrel" render "$sheet" --dpi 300 -o "$folder/sheet.png" 2>/dev/null || exit 1
zbarimg -q "$folder/sheet.png" >"$folder/read" 2>/dev/null
dmtxread -N2 -n -m 20000 "$folder/sheet.png" | sed 's/^/DataMatrix:/' >>"$folder/read"
while read -r line; do
    grep -qxF "$line" "$folder/read" || { echo "FAILED: not read: $line" && failed=1; }
done <<'END'
EAN-13:5901234123457
EAN-8:96385074
EAN-13:0036000291452
CODE-39:CODE 39
CODE-39:UP
CODE-93:CODE 93
Codabar:A31117-0132B
CODE-128:0195012345678903
CODE-128:10LOT42a
CODE-128:SET A
CODE-128:Set b
CODE-128:2468
I2/5:12345670
QR-Code:https://example.org/vagrel?n=42
QR-Code:0123456789
DataMatrix:Data Matrix ECC 200
DataMatrix:centred
END
exit $failed
