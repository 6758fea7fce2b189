#!/bin/sh
# Usage: update.sh LUPDATE MODEL_TEXTS TS
# Brings the list of texts in TS up to date; new ones are marked as unfinished. The build calls it for the target
# update_translations, with the texts of the model's tables.
cd -- "$(dirname -- "$0")/.." || exit
# The model marks its texts with functions of its own, because it knows no Qt.
# shellcheck disable=SC2046  # no file has a blank in its name
exec "$1" -silent -locations none -no-obsolete -no-ui-lines \
  -tr-function-alias translate+=Pattern,translate+=Marked \
  $(find src -path src/host/windows -prune -o -path src/host/posix -prune -o -name '*.cpp' -print -o -name '*.h' -print) "$2" -ts "$3"
