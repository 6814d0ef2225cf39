#!/bin/sh
# The shared library exports the public routines and nothing else: every
# defined dynamic symbol is a routine name in lower case with one trailing
# underscore. Bodies, trace layers, auxiliaries and C++ runtime pieces stay
# hidden.
lib="$1"
bad=$(nm -D --defined-only "$lib" | awk '{print $3}' | grep -v -E '^[a-z][0-9]{2}[a-z]{3}_$|^y90gcft_$|^ZEB_' )
count=$(nm -D --defined-only "$lib" | awk '{print $3}' | grep -c -E '^[a-z][0-9]{2}[a-z]{3}_$')
if [ -n "$bad" ]; then
  echo "symbols that should be hidden:"
  echo "$bad" | head -20
  exit 1
fi
echo "$count public routines exported, nothing else"
