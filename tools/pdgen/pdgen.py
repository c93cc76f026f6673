#!/usr/bin/env python3
"""Generator of the orbisk_switch control-plane interface.

Reads catalogue/*.json and writes, into the given output directory, the files
that the library and the driver model are built from. With --header it writes
only the public header (to check or refresh the checked-in copy).

  pdgen.py --root <source root> --out <dir>
  pdgen.py --root <source root> --header <path>
  pdgen.py --root <source root> --list      (what --out writes, by kind)
"""

import argparse
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import catalogue  # noqa: E402
import emit_descriptors  # noqa: E402
import emit_header  # noqa: E402
import emit_lib  # noqa: E402
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


def generate(prog, header_only=False):
    """(kind, path under the output directory, text) of every generated file.
    Kinds: header (the public header), descriptors (the program's descriptor
    source), lib (library sources), map (the export list), tests (test
    sources), other (headers and tables that those include)."""
    out = [("header", "include/orbisk_switch/pd.h", emit_header.emit(prog))]
    if header_only:
        return out
    out.append(("descriptors", "pd_descriptors.cpp", emit_descriptors.emit(prog)))
    out.append(("other", "pd_limits.h", emit_descriptors.emit_limits(prog)))
    out.append(("other", "pd_handles.h", emit_descriptors.emit_handles(prog)))
    out.append(("map", "libob_bf_pd_nat_vxlan.map", emit_lib.emit_version_script(prog)))
    for name, text in sorted(emit_lib.emit(prog).items()):
        out.append(("lib" if name.endswith(".cpp") else "other", name, text))
    for name, text in sorted(emit_tests.emit(prog).items()):
        out.append(("tests" if name.endswith(".cpp") else "other", name, text))
    return out


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("--root", required=True)
    ap.add_argument("--out")
    ap.add_argument("--header")
    ap.add_argument("--list", action="store_true",
                    help="print the files it would write, one 'kind path' a line, and write none")
    args = ap.parse_args()
    prog = catalogue.Program(args.root)
    outputs = generate(prog, header_only=not (args.out or args.list))
    if args.list:
        for kind, name, _ in outputs:
            print(kind, name)
        return 0
    if args.header:
        write_if_changed(args.header, outputs[0][2])
    if args.out:
        os.makedirs(args.out, exist_ok=True)
        for _, name, text in outputs:
            path = os.path.join(args.out, name)
            os.makedirs(os.path.dirname(path), exist_ok=True)
            write_if_changed(path, text)
    return 0


if __name__ == "__main__":
    sys.exit(main())
