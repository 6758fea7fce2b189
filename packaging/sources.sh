#!/usr/bin/env bash
# Usage: sources.sh [FOLDER]
# Packs the sources as they are, without build folders, into an archive in FOLDER, and prints its path. Without FOLDER,
# the archive is in the folder build. This does not use git, so the sources of an unpacked archive can be packed too.
set -euo pipefail
# shellcheck source=tools/common.sh
. "$(dirname -- "$0")/../tools/common.sh"
read_argument "$build" "$@"
out=$(realpath --canonicalize-missing -- "$argument")
cd "$source_folder"
version=$(project_version)
archive=$out/ovl-software-$version.tar.gz
can_write "$out" || fail "$out cannot be written. Name another folder: $command_name FOLDER"
own=$out
[ "$out" != "$source_folder" ] || own=$archive
# The same files give the same archive, with the date of the release.
tar --create --gzip --file "$archive.new" --anchored --no-wildcards --exclude=./.git --exclude=./build \
  --exclude="./$(realpath --relative-to=. -- "$own")" --exclude="./$(realpath --relative-to=. -- "$archive.new")" \
  --exclude-from=<(find . -mindepth 2 -name CMakeCache.txt -printf '%h\n') \
  --sort=name --mtime="$(sed -n '/^ -- /{s/.*>  //p;q}' packaging/debian/changelog)" --owner=root:0 --group=root:0 \
  --mode=u+rw,go=u,go-w --transform="s,^\.,ovl-software-$version," .
mv "$archive.new" "$archive"
echo "$archive"
