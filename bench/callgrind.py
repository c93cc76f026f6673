#!/usr/bin/env python3
"""Instructions and heap allocations per call of each bench_pd case.

Runs `bench_pd --loop <case> <N>` and `--loop <case> <2N>` under callgrind and
takes (total(2N) - total(N)) / N as the instructions of one call: start-up,
loading and exit are the same in both runs and drop out. Allocations are
counted twice over: by the loop's own count of allocator calls (run natively)
and by the difference of memcheck's "total heap usage" between the two runs.
A write path or a schema text call that allocates makes the exit status 1.

Builds nothing: give it the bench_pd binary of the build to measure.
"""

import argparse
import re
import subprocess
import sys

COLLECTED = re.compile(r"^==\d+== Collected : (\d+)$", re.M)
HEAP_USAGE = re.compile(r"total heap usage: ([\d,]+) allocs")
LOOP_LINE = re.compile(r"^case (\S+) calls (\d+) allocations (\S+) failures (\d+)$", re.M)

# Each library case beside its hand-written reference.
PAIRS = [("l2Lookup_add", "l2Lookup_add_reference"),
         ("ecmp_add_member", "ecmp_add_member_reference"),
         ("ecmpGroup_add_sel", "ecmpGroup_add_sel_reference"),
         ("ecmp_add_to_group", "ecmp_add_to_group_reference"),
         ("counter_read_l2DmacClassifyCount", "counter_read_l2DmacClassifyCount_reference"),
         ("meter_set_stormControlMeter", "meter_set_stormControlMeter_reference"),
         ("entry_hdl_first_by_handle", "entry_hdl_first_per_table")]
FLOOR = "driver_call_only"
# Kinds of case that must not allocate: write paths, schema and value text,
# comparison with hardware, counter and meter calls.
NO_ALLOCATION = ("write", "text", "resource")


def run(cmd):
    try:
        proc = subprocess.run(cmd, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
    except FileNotFoundError:
        sys.exit(f"cannot run {cmd[0]}")
    if proc.returncode != 0:
        sys.exit(f"failed ({proc.returncode}): {' '.join(cmd)}\n{proc.stdout}{proc.stderr}")
    return proc.stdout, proc.stderr


def loop_line(out):
    m = LOOP_LINE.search(out)
    if not m:
        sys.exit(f"no result line in:\n{out}")
    return m


def instructions(binary, case, n):
    out, err = run(["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null",
                    binary, "--loop", case, str(n)])
    loop_line(out)
    m = COLLECTED.search(err)
    if not m:
        sys.exit(f"no 'Collected' line from callgrind for {case}:\n{err}")
    return int(m.group(1))


def memcheck_allocs(binary, case, n):
    _, err = run(["valgrind", "--tool=memcheck", binary, "--loop", case, str(n)])
    m = HEAP_USAGE.search(err)
    if not m:
        sys.exit(f"no heap summary from memcheck for {case}:\n{err}")
    return int(m.group(1).replace(",", ""))


def main():
    ap = argparse.ArgumentParser(description=__doc__,
                                 formatter_class=argparse.RawDescriptionHelpFormatter)
    ap.add_argument("binary", help="path of the bench_pd executable")
    ap.add_argument("-n", "--calls", type=int, default=100000,
                    help="N: calls of the shorter callgrind run (default 100000)")
    ap.add_argument("--memcheck-calls", type=int, default=10000,
                    help="N for the memcheck runs (default 10000)")
    ap.add_argument("--no-memcheck", action="store_true", help="skip the memcheck runs")
    ap.add_argument("cases", nargs="*", help="cases to run (default: all)")
    args = ap.parse_intermixed_args()

    listed, _ = run([args.binary, "--list"])
    kinds = dict(line.split() for line in listed.splitlines() if line.strip())
    cases = args.cases or list(kinds)
    for c in cases:
        if c not in kinds:
            sys.exit(f"unknown case {c}; known: {' '.join(kinds)}")

    n = args.calls
    per_call = {}
    rows = []
    allocating_writes = []
    for case in cases:
        t1 = instructions(args.binary, case, n)
        t2 = instructions(args.binary, case, 2 * n)
        per_call[case] = (t2 - t1) / n

        native = loop_line(run([args.binary, "--loop", case, str(n)])[0]).group(3)
        if args.no_memcheck:
            heap = "-"
        else:
            m = args.memcheck_calls
            heap = str(memcheck_allocs(args.binary, case, 2 * m) -
                       memcheck_allocs(args.binary, case, m))
        allocates = (native not in ("0", "-")) or (heap not in ("0", "-"))
        if allocates and kinds[case] in NO_ALLOCATION:
            allocating_writes.append(case)
        rows.append((case, kinds[case], per_call[case], native, heap))

    print(f"instructions per call: (Ir(2N) - Ir(N)) / N, N = {n}")
    print(f"heap: allocations in the loop of N calls (own count), "
          f"and memcheck allocs(2M) - allocs(M), M = {args.memcheck_calls}")
    print()
    floor = per_call.get(FLOOR)
    head = f"{'case':<28} {'kind':<6} {'Ir/call':>9}"
    if floor is not None:
        head += f" {'Ir/call - floor':>16}"
    head += f" {'allocs (own)':>13} {'allocs (memcheck)':>18}"
    print(head)
    for case, kind, ir, native, heap in rows:
        line = f"{case:<28} {kind:<6} {ir:>9.1f}"
        if floor is not None:
            # The floor is that of an add; a read's driver call does more.
            shown = case != FLOOR and kind == "write"
            line += f" {ir - floor:>16.1f}" if shown else f" {'-':>16}"
        line += f" {native:>13} {heap:>18}"
        print(line)

    print()
    for library, reference in PAIRS:
        if library not in per_call or reference not in per_call:
            continue
        lib, ref = per_call[library], per_call[reference]
        print(f"{library} / {reference}: {lib / ref:.3f} (per call, floor included)")
        if library == "l2Lookup_add" and floor is not None and ref > floor:
            print(f"{library} / {reference}: {(lib - floor) / (ref - floor):.3f} "
                  f"(packing only, {FLOOR} taken off both)")

    if allocating_writes:
        print(f"\nwrite or text paths that allocate: {' '.join(allocating_writes)}")
        return 1
    print("\nwrite or text paths that allocate: none")
    return 0


if __name__ == "__main__":
    sys.exit(main())
