#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Remakes NxTestText.ttf: the font that texts are drawn in where tests compare them with pictures.
set -euo pipefail
cd "$(dirname "$0")"
characters=$(mktemp)
trap 'rm -f "$characters"' EXIT
/usr/bin/python3 -c 'print("".join(map(chr, range(0x21, 0x7F))))' >"$characters"
cat >>"$characters" <<'EOT'
东湖片区城市设计发布滨江新城项目仿真效果某规划集团有限公司研究院总体标题文字
EOT
/usr/bin/python3 ../../app/fonts/make_font.py /usr/share/fonts/opentype/noto/NotoSansCJK-Regular.ttc "Noto Sans CJK SC" \
    "Nx Test Text" "$characters" NxTestText.ttf
