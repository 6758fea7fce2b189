#!/usr/bin/env bash
# The translation has all texts of the sources and of the model's tables, and no others:
# translation.sh SOURCES LUPDATE MODEL_TEXTS
set -euo pipefail
kept=$1/translations/ovl_de.ts
now=$(mktemp --suffix=.ts)
trap 'rm -f "$now"' EXIT
cp "$kept" "$now"
# It does not understand every class, and reports each text without a context.
reported=$("$1/translations/update.sh" "$2" "$3" "$now" 2>&1 | grep -v 'Ignoring definition of undeclared qualified class' || true)
[ -z "$reported" ] || { echo "$reported"; exit 1; }
diff "$kept" "$now" || { echo "Build the target update_translations, and translate what is new."; exit 1; }
! grep --before-context=2 'type="' "$kept"
