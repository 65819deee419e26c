#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Takes files out of one of the distribution's source packages, with apt settings of its own: the machine's stay as they are.
#   fetch_source.sh PACKAGE FOLDER PATTERN...   (patterns of tar, below the archive's one folder)
set -euo pipefail
package=$1
target=$2
shift 2
# Other patterns than the last time's are fetched anew.
marker=$target/complete-$(printf '%s ' "$@" | cksum | cut -d " " -f 1)
[ -e "$marker" ] && exit 0
mkdir -p "$target/apt/lists/partial" "$target/apt/cache/archives/partial"
work=$(cd "$target" && pwd)

release=$(. /etc/os-release && echo "$VERSION_CODENAME")
mirror=$(sed -nE 's/^URIs: *([^ ]*debian)\/?$/\1/p; s/^deb (\[[^]]*\] )?([^ ]*debian)\/? .*/\2/p' \
    /etc/apt/sources.list /etc/apt/sources.list.d/* 2>/dev/null | head -n 1 || true)
printf 'deb-src %s %s main\n' "${mirror:-http://deb.debian.org/debian}" "$release" > "$work/apt/sources.list"
# apt splits option values at blanks, so the folder is given in apt's own configuration format.
cat > "$work/apt/apt.conf" <<CONF
Dir::Etc::SourceList "$work/apt/sources.list";
Dir::Etc::SourceParts "/dev/null";
Dir::State::Lists "$work/apt/lists";
Dir::Cache "$work/apt/cache";
APT::Sandbox::User "root";
CONF
export APT_CONFIG=$work/apt/apt.conf
apt-get -qq update
(cd "$work" && apt-get -qq source --download-only "$package")
archive=$(ls "$work/${package}_"*.orig.tar.* | head -n 1)
tar -xf "$archive" -C "$work" --strip-components=1 --wildcards "$@"
rm -rf "$work/apt" "$work/${package}_"*
touch "$marker"
