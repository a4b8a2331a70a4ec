#!/bin/sh
# mutants.sh [--count N] [--seed N] [PATH...]: makes small changes in a copy of the project, one at a time, and tells which of
# them no test notices. A run that was cut off goes on where it stopped. PATH: only files that begin so.
set -eu
. "$(dirname "$0")/common.sh"

"$root/scripts/setup.sh" build test mutants
locked "$build/mutants/lock"
exec python3 -B "$root/tests/mutation/mutants.py" "$build/mutants" "$@"
