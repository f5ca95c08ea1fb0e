#!/bin/sh
# SPDX-License-Identifier: MIT
# run.sh SECONDS|fixed [FOLDER [FUZZER...]]
# Runs each fuzzer for SECONDS, or with a fixed number of inputs that are always the same, and
# prints the numbers of inputs. FOLDER contains the programs (by default build/fuzz/fuzz). Inputs
# that reach new code are saved in FOLDER/corpus for the next run, inputs that reveal a fault in
# FOLDER/faults.
set -eu

die() { echo "fuzz: $*" >&2; exit 1; }

here=$(CDPATH= cd -- "$(dirname -- "$0")" && pwd)
[ $# -ge 1 ] || die "usage: run.sh SECONDS|fixed [FOLDER [FUZZER...]]"
seconds=$1
folder=${2:-$here/../../build/fuzz/fuzz}
shift
[ $# -eq 0 ] || shift
[ $# -gt 0 ] || set -- state ip4text gvcp description

mkdir -p "$folder/faults"
export ASAN_OPTIONS=detect_leaks=1:allocator_may_return_null=1
export UBSAN_OPTIONS=print_stacktrace=1
export LSAN_OPTIONS="suppressions=$here/../../tests/support/lsan.supp:print_suppressions=0"

# Numbers of inputs that take some seconds each.
runs_of() {
    case $1 in
    state) echo 4000 ;;
    ip4text) echo 300000 ;;
    gvcp) echo 1500000 ;;
    *) echo 30000 ;;
    esac
}

failed=
for fuzzer in "$@"; do
    program=$folder/fuzz_$fuzzer
    [ -x "$program" ] || die "$program is missing; build it: cmake --preset fuzz && cmake --build --preset fuzz"
    learned=$folder/corpus/$fuzzer
    bound=-max_total_time=$seconds
    if [ "$seconds" = fixed ]; then
        learned=$folder/corpus/fixed-$fuzzer
        rm -rf "$learned"
        bound="-seed=1 -runs=$(runs_of "$fuzzer")"
    fi
    mkdir -p "$learned"
    dictionary=
    [ ! -f "$here/$fuzzer.dict" ] || dictionary=-dict=$here/$fuzzer.dict
    log=$folder/$fuzzer.log
    # The limits apply to each input: an input that hangs or uses too much memory is a fault as
    # well.
    # shellcheck disable=SC2086 # the bound is words
    if "$program" $bound -timeout=10 -rss_limit_mb=2048 -max_len=4096 \
            -print_final_stats=1 -artifact_prefix="$folder/faults/$fuzzer-" $dictionary \
            "$learned" "$here/corpus/$fuzzer" >"$log" 2>&1; then
        runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
        [ "${runs:-0}" -gt 0 ] || die "$fuzzer tried nothing; see $log"
        echo "fuzz: $fuzzer: $runs runs without a fault"
    else
        tail -n 60 "$log" >&2
        echo "fuzz: $fuzzer: a fault, see $log"
        failed=yes
    fi
done
[ -z "$failed" ]
