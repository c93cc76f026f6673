#!/usr/bin/env python3
"""Generator of the orbisk_switch control-plane interface.

Reads catalogue/*.json and writes, into the given output directory, the files
that the library and the driver model are built from. With --header it writes
only the public header (to check or refresh the checked-in copy).

  pdgen.py --root <source root> --out <dir>
  pdgen.py --root <source root> --header <path>
"""

import argparse
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import catalogue  # noqa: E402
import emit_descriptors  # noqa: E402
import emit_header  # noqa: E402
import emit_lib  # noqa: E402
import emit_model  # noqa: E402
import emit_tests  # noqa: E402


def write_if_changed(path, text):
    try:
        with open(path) as f:
            if f.read() == text:
                return
    except OSError:
        pass
    with open(path, "w") as f:
        f.write(text)


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("--root", required=True)
    ap.add_argument("--out")
    ap.add_argument("--header")
    args = ap.parse_args()
    prog = catalogue.Program(args.root)
    outputs = {}
    header = emit_header.emit(prog)
    if args.header:
        write_if_changed(args.header, header)
    outputs["include/orbisk_switch/pd.h"] = header
    outputs["orbisk_model_tables.inc"] = emit_model.emit(prog)
    outputs["pd_descriptors.cpp"] = emit_descriptors.emit(prog)
    outputs["pd_limits.h"] = emit_descriptors.emit_limits(prog)
    outputs.update(emit_lib.emit(prog))
    outputs.update(emit_tests.emit(prog))
    if args.out:
        os.makedirs(args.out, exist_ok=True)
        for name, text in outputs.items():
            path = os.path.join(args.out, name)
            os.makedirs(os.path.dirname(path), exist_ok=True)
            write_if_changed(path, text)
    return 0


if __name__ == "__main__":
    sys.exit(main())
