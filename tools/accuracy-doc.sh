#!/bin/sh
# Runs the accuracy tests of a build and writes docs/accuracy.md from what they
# measure: the peak and RMS error of each function, per range, against the
# committed high-precision reference tables.
# Usage: tools/accuracy-doc.sh BUILD_DIR
set -eu
build="${1:-build}"
top=$(cd "$(dirname "$0")/.." && pwd)
rows=$(mktemp)
trap 'rm -f "$rows"' EXIT
ZEB_ACCURACY_REPORT="$rows" "$build/tests/accuracy_tests" > /dev/null ||
  echo "accuracy-doc: some accuracy tests fail; their figures are still reported" >&2
{
  echo "# Accuracy"
  echo
  echo "Measured by \`make accuracy-doc\` (tools/accuracy-doc.sh), which runs the"
  echo "accuracy tests against the reference tables in tests/data. The references"
  echo "are computed with mpmath at 40 digits or more by the scripts in"
  echo "tools/refdata; each table's header states its provenance. Errors are in"
  echo "units of the last place of the reference (ulp) unless marked \"rel\""
  echo "(componentwise relative error) or \"cond\" (ulps divided by the condition"
  echo "number, for ranges where the function is ill-conditioned)."
  echo
  echo "| Routine | Range | Peak | RMS | Points |"
  echo "|---|---|---|---|---|"
  sort -t'|' -k2,2 -s "$rows"
} > "$top/docs/accuracy.md"
echo "wrote docs/accuracy.md ($(wc -l < "$rows") rows)"
