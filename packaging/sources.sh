#!/usr/bin/env bash
# Packs the sources as they are, without the folders of any build, and prints the path: sources.sh [FOLDER]
# The folder is build if none is named. Git is not asked: an unpacked archive can be packed and built in the same way.
set -euo pipefail
out=$(realpath --canonicalize-missing "${1:-$(dirname "$0")/../build}")
cd "$(dirname "$0")/.."
version=$(sed -n 's/^project(.* VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt)
archive=$out/ovl-software-$version.tar.gz
mkdir -p "$out"
# The same files give the same archive, with the date of the release.
tar --create --gzip --file "$archive" --anchored --exclude=./.git --exclude=./build --exclude="./$(realpath --relative-to=. "$out")" \
  --exclude-from=<(find . -mindepth 2 -name CMakeCache.txt -printf '%h\n') \
  --sort=name --mtime="$(sed -n '/^ -- /{s/.*>  //p;q}' packaging/debian/changelog)" --owner=root:0 --group=root:0 \
  --mode=u+rw,go=u,go-w --transform="s,^\.,ovl-software-$version," .
echo "$archive"
