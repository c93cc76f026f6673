"""The Python front's costs: start-up over all tables, adds per second
through the front against the C entry point called directly from Python,
and reads per second from value text and from records, on the driver model
with its call log off.

    python3 bench/python_front.py [--lib build/.../libob_bf_pd_nat_vxlan.so] [-n 20000]
"""

import argparse
import ctypes
import os
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "python"))

import orbisk  # noqa: E402
from orbisk._native import DevTarget  # noqa: E402


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("--lib")
    ap.add_argument("-n", type=int, default=20000)
    args = ap.parse_args()

    t0 = time.perf_counter()
    sw = orbisk.Switch(lib=args.lib)
    t1 = time.perf_counter()
    for t in sw.tables:
        t.shape
    for p in sw.profiles:
        p.shape
    t2 = time.perf_counter()
    print("Switch(): %.1f ms; all %d tables and %d profiles from schema text: %.1f ms more" %
          ((t1 - t0) * 1e3, len(sw.tables), len(sw.profiles), (t2 - t1) * 1e3))

    sw.model.orbisk_model_set_call_log(0, 0)
    sw.model.orbisk_model_reset()
    sw.model.orbisk_model_set_call_log(0, 0)
    t = sw.tables.l2Lookup
    n = args.n
    t0 = time.perf_counter()
    for i in range(n):
        t.add(match={"dmac": i, "egrL2Domain": 5}, action="l2LookupKnownUcast", egrL2Aintf=3)
    front = n / (time.perf_counter() - t0)

    sw.model.orbisk_model_reset()
    sw.model.orbisk_model_set_call_log(0, 0)
    fn = sw._native.lib.p4_pd_orbisk_switch_l2Lookup_table_add_with_l2LookupKnownUcast
    fn.argtypes = [ctypes.c_uint32, DevTarget, ctypes.c_void_p, ctypes.c_void_p, ctypes.POINTER(ctypes.c_uint32)]
    rec = t.shape.record()
    spec = t.shape.actions["l2LookupKnownUcast"].record()
    out = ctypes.c_uint32()
    tgt = DevTarget(0, 0xFFFF)
    t0 = time.perf_counter()
    for i in range(n):
        rec.egrMd_dmacOui, rec.egrMd_dmacStation, rec.egrMd_egrL2Domain = i >> 24, i & 0xFFFFFF, 5
        spec.action_egrL2Aintf = 3
        fn(0, tgt, ctypes.byref(rec), ctypes.byref(spec), ctypes.byref(out))
    direct = n / (time.perf_counter() - t0)
    print("adds per second, %d l2Lookup entries: front %.0f, C entry point from Python %.0f, ratio %.2f" %
          (n, front, direct, direct / front))

    # Reads of the same entries: from value text (get) and from the
    # library's records (get_record, what a dump reads).
    handles = t.handles()
    for read in (t.get, t.get_record):
        t0 = time.perf_counter()
        for h in handles:
            read(h)
        print("reads per second by %s: %.0f" % (read.__name__, len(handles) / (time.perf_counter() - t0)))


if __name__ == "__main__":
    main()
