#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Writes a source that compiles one of OpenSceneGraph's examples unchanged: what it includes comes first, and the example itself in
# a namespace of its own, so that many examples fit into one program.
#   wrap.sh EXAMPLES NAME OUTPUT
set -euo pipefail
folder=$1/$2
name=$2
sources=$(cd "$folder" && ls -- *.cpp)
{
    echo '#include "ExampleHost.h"'
    # A macro of Win32's that is a name of OpenSceneGraph's.
    echo '#undef RELATIVE'
    (cd "$folder" && cat -- *.cpp $(ls -- *.h *.hpp 2>/dev/null || true)) | tr -d '\r' |
        sed -nE 's/^[ \t]*#[ \t]*include[ \t]*<([^>]+)>.*/#include <\1>/p' | sort -u
    echo '#include "ExampleViewer.h"'
    echo "namespace Example_$name"
    echo '{'
    echo '#define Viewer ExampleViewer'
    echo '#define main Main'
    for source in $sources; do
        echo "#include <$name/$source>"
    done
    echo '#undef main'
    echo '#undef Viewer'
    # Some of them take no arguments.
    echo "const RegisteredExample registered(\"$name\", [](int argc, char** argv) { return CallMain(&Main, argc, argv); });"
    echo '}'
} >"$3.new"
cmp -s "$3.new" "$3" 2>/dev/null && rm "$3.new" || mv "$3.new" "$3"
