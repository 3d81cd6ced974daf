#!/bin/bash
# The change log in the form of Debian, whose lines have 80 columns at most:
# debian-changelog.sh CHANGELOG.md changelog.gz MAINTAINER
set -euo pipefail

awk -v maintainer="$3" '
  function item(  count, words, i, line) {
    count = split(text, words, " ")
    line = "  *"
    for (i = 1; i <= count; ++i) {
      if (length(line " " words[i]) > 78) { print line; line = "   " }
      line = line " " words[i]
    }
    if (count) print line
    text = ""
  }
  function finish() { item(); if (date) printf "\n -- %s  %s\n", maintainer, date }
  /^## / {
    finish()
    if (date) print ""
    split($0, words, /[ ()]+/)
    command = "LC_ALL=C date --utc --rfc-email --date=" words[3]
    command | getline date
    close(command)
    printf "mortane (%s) unstable; urgency=medium\n\n", words[2]
    next
  }
  date && /^- / { item(); text = substr($0, 3); next }
  date && /^  / { text = text $0 }
  END { finish() }' "$1" | gzip -9n >"$2"
