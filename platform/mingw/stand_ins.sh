#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Neither OpenSceneGraph nor CEGUI is to be had for Windows here. This makes DLLs of their names, and import libraries, with just
# the names in them that the objects given want: so library and host can be linked as Windows programs and loaded. Nothing in
# them works: a call ends the program and says which name it was. Variables are zero, as CEGUI's singletons are until it is
# started.
#   stand_ins.sh PREFIX OBJECT...
set -euo pipefail
prefix=$(cd "$1" && pwd)
shift
work=$prefix/stand-ins
mkdir -p "$work"
nm=x86_64-w64-mingw32-nm

# What is wanted and not there: "LIBRARY function|data NAME" a line. A name without parameters belongs to a variable or a table.
# What is imported outright is wanted even where the objects hold a copy of their own.
"$nm" --defined-only "$@" 2>/dev/null | awk 'NF == 3 { print $3 }' | sort -u >"$work/defined"
"$nm" -u "$@" 2>/dev/null | awk 'NF == 2 { print $2 }' |
    grep -E '(5CEGUI|3osg|5osgDB|5osgGA|7osgUtil|9osgViewer|11OpenThreads)|^graphicswindow_Win32$' | sort -u |
    comm -23 - "$work/defined" | sed 's/^__imp_//' | sort -u >"$work/wanted"
paste "$work/wanted" <(c++filt <"$work/wanted") | awk -F '\t' '
    BEGIN { library["5CEGUI"] = "CEGUIBase-0"; library["3osg"] = "osg"; library["5osgDB"] = "osgDB"; library["5osgGA"] = "osgGA"
            library["7osgUtil"] = "osgUtil"; library["9osgViewer"] = "osgViewer"; library["11OpenThreads"] = "OpenThreads" }
    { where = "osgViewer"
      if (match($1, /5CEGUI|3osg|5osgDB|5osgGA|7osgUtil|9osgViewer|11OpenThreads/)) where = library[substr($1, RSTART, RLENGTH)]
      if ($1 ~ /5CEGUI14OpenGLRenderer|5CEGUI18OpenGLRendererBase/) where = "CEGUIOpenGLRenderer-0"
      print where, ($2 ~ /\(/ || $1 == "graphicswindow_Win32" ? "function" : "data"), $1 }' >"$work/names.new"
if cmp -s "$work/names.new" "$work/names"; then
    exit 0
fi

cat >"$work/not_here.c" <<'CODE'
#include <stdio.h>
#include <stdlib.h>
void nx_not_here(const char* name)
{
    fprintf(stderr, "%s was called, which is not here\n", name);
    fflush(stderr);
    _exit(3);
}
CODE
for library in OpenThreads osg osgDB osgGA osgUtil osgViewer CEGUIBase-0 CEGUIOpenGLRenderer-0; do
    awk -v library="$library" '
        $1 != library { next }
        { print "    .globl " $3 }
        $2 == "data" { print "    .data\n    .balign 16\n" $3 ":\n    .zero 2048"; next }
        # Without a system there is no singleton; and nothing is left to free of a text that has never grown.
        $3 ~ /15getSingletonPtrE|6StringD[12]Ev$/ { print "    .text\n" $3 ":\n    xorl %eax, %eax\n    ret"; next }
        { print "    .text\n" $3 ":\n    leaq name" NR "(%rip), %rcx\n    jmp nx_not_here"
          print "    .section .rdata\nname" NR ":\n    .asciz \"" $3 "\"" }' "$work/names.new" >"$work/$library.s"
    awk -v library="$library" 'BEGIN { print "LIBRARY \"lib" library ".dll\"\nEXPORTS" }
        $1 == library { print "    \"" $3 "\"" ($2 == "data" ? " DATA" : "") }' "$work/names.new" >"$work/$library.def"
    x86_64-w64-mingw32-gcc-posix -shared -o "$prefix/bin/lib$library.dll" "$work/$library.s" "$work/not_here.c" \
        "$work/$library.def" -Wl,--out-implib="$prefix/lib/lib$library.dll.a"
done
mv "$work/names.new" "$work/names"
