#!/usr/bin/env bash
# The spelling and the style of what users read: writing.sh SOURCES PROGRAM... Checks the documents and the help below
# SOURCES and what the programs print with --help. Words of ours are in words.txt.
set -euo pipefail
export LC_ALL=C.UTF-8
words=$(realpath "$(dirname "$0")")/words.txt
cd "$1"
programs=("${@:2}")
most_words=30
status=0

# The paragraphs, cells and items of a text, one a line behind its name, without code and without the texts of the
# program, which have an odd spelling of their own.
prose() {
  awk -v name="$1" '
    function flush() {
      gsub(/`[^`]*`/, " X ", text); gsub(/"[^"]*"/, " X ", text); gsub(/\]\([^)]*\)/, "]", text)
      if (text != "") print name ":" text
      text = ""
    }
    /^```/ { code = !code; next }
    code || /^>/ { next }
    /^#/ && name == "help/messages.md" { flush(); next } # the messages themselves
    /^ *$/ || /^ *([-*|#]|[0-9]+\. )/ { flush() }
    { text = text " " $0 }
    END { flush() }'
}

report() {
  [ -z "$2" ] || { echo "$1:"; echo "$2"; status=1; }
}

texts=$(
  for file in README.md CHANGELOG.md docs/*.md help/*.md; do cat "$file" | prose "$file"; done
  for program in "${programs[@]}"; do "$program" --help | sed 's/^  \+/\n/' | prose "${program##*/} --help"; done
)
unknown=$(cut -d : -f 2- <<< "$texts" | grep -oE "[[:alpha:]]+('[[:alpha:]]+)?" | grep -E '[[:lower:]]{2}' | sort -u |
  hunspell -d en_GB -p "$words" -l)
report "Not in the dictionary" "$unknown"
report "Words to avoid" "$(grep -wiE '(please|simply|whoever|wherever|tells?|bears?|hears?|forgets?|heeds?|via|etc|e\.g|i\.e)' \
  <<< "$texts" | grep -v '^docs/writing.md')"
report "Sentences of more than $most_words words" "$(awk -v most="$most_words" '{
    name = substr($0, 1, index($0, ":"))
    count = split(substr($0, length(name) + 1), sentences, / \| |[.!?:;][*]* /)
    for (at = 1; at <= count; ++at) {
      if (split(sentences[at], parts, /[^[:alnum:]'\''-]+/) > most + 2) print name " " sentences[at]
    }
  }' <<< "$texts")"
exit $status
