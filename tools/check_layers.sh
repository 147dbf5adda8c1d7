#!/bin/bash
# Fails when a source file includes a header of a folder above its own. The
# folders, lowest first; a folder may include its own headers and those of the
# folders before it. The desktop, on top, drives its screenshots with the
# scenario runner of cli.
set -u
src=${1:-src}
layers="core bank screens calendar physics symbols checks coders pickers archive settings station cli desktop"
grep -rnE '^#include "[a-z_]+/' "$src" --include='*.h' --include='*.cpp' |
  awk -v src="$src" -v layers="$layers" '
    BEGIN { n = split(layers, l, " "); for (i = 1; i <= n; i++) rank[l[i]] = i }
    {
      file = $0; sub(/:.*/, "", file)
      folder = substr(file, length(src) + 2); sub(/\/.*/, "", folder)
      target = $0; sub(/.*#include "/, "", target); sub(/\/.*/, "", target)
      if (!(folder in rank) || !(target in rank)) next
      if (rank[target] > rank[folder]) { print $0 ": " folder " may not include " target; bad = 1 }
    }
    END {
      if (bad) { print "Layers, lowest first: " layers; exit 1 }
      print "every include runs down the layers"
    }'
