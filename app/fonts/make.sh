#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Remakes youyuan.ttf: ASCII and every character of GB 2312, so that any usual Chinese title has its glyphs.
set -euo pipefail
cd "$(dirname "$0")"
characters=$(mktemp)
trap 'rm -f "$characters"' EXIT
/usr/bin/python3 - >"$characters" <<'PYTHON'
print("".join(map(chr, range(0x21, 0x7F))) + "©®°±·×÷—–‘’“”…€")
for row in range(0xA1, 0xF8):
    cells = (bytes([row, cell]) for cell in range(0xA1, 0xFF))
    print("".join(cell.decode("gb2312", "ignore") for cell in cells))
PYTHON
/usr/bin/python3 make_font.py /usr/share/fonts/opentype/noto/NotoSansCJK-Regular.ttc "Noto Sans CJK SC" YouYuan "$characters" youyuan.ttf
