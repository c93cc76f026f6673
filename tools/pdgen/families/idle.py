"""Idle time: the nine functions of each table whose entries age. Enabling,
reading the parameters and reading an entry's hit state have rules of their
own, written once in the engine (src/pd/idle.cpp); the others hand their
arguments to the driver with the table's handle."""

from .base import DEV, ENTRY_HDL, SESS, Arg, Family
from .packing import hx

PARAMS = Arg("pd_idle_params", "params", "params")
OUT_PARAMS = Arg("pd_idle_params *", "params", "out params")
TMO_CB = Arg("pd_idle_tmo_cb", "callback", "timeout callback")
UPDATE_CB = Arg("pd_idle_update_cb", "callback", "update callback")
COOKIE = Arg("void *", "cookie", "cookie")
TTL = Arg("uint32_t", "ttl", "ttl")
OUT_TTL = Arg("uint32_t *", "ttl", "out ttl")
OUT_HIT_STATE = Arg("uint32_t *", "hit_state", "out hit state")


def ages(t):
    return t.idle_timeout


def engine(call):
    """A body that calls the engine with the table's handle first."""
    return lambda f: ["  return %s(%s, %s);" % (call, hx(f.table.handle), ", ".join(n for _, n in f.args))]


def driver(call, tail=""):
    """A body that forwards to the driver, the table's handle third."""
    def body(f):
        names = [n for _, n in f.args]
        return ["  return %s(%s, %s, %s%s);" % (call, names[0], names[1], hx(f.table.handle),
                                               "".join(", " + n for n in names[2:]) + tail)]
    return body


# One-line functions: one generated source for all areas.
BY_AREA = False

# What its generated sources include.
INCLUDES = ["export.h", "idle.h", "orbisk_switch/pd_driver.h"]

FAMILIES = [
    Family("idle_tmo_enable", "{p}{t}_idle_tmo_enable", [SESS, DEV, PARAMS],
           "sets the table's idle parameters and turns ageing on; a refused parameter set "
           "leaves it off.", engine("idle_tmo_enable"), when=ages, place=(80, 0)),
    Family("idle_tmo_disable", "{p}{t}_idle_tmo_disable", [SESS, DEV],
           "turns ageing off.", driver("pipe_mgr_idle_tmo_set_enable", ", 0"), when=ages,
           place=(80, 1)),
    Family("idle_params_get", "{p}{t}_idle_params_get", [SESS, DEV, OUT_PARAMS],
           "reads the idle parameters back: all of them in notify mode, else the mode alone; "
           "untouched on failure.", engine("idle_params_get"), when=ages, place=(80, 2)),
    Family("idle_register_tmo_cb", "{p}{t}_idle_register_tmo_cb", [SESS, DEV, TMO_CB, COOKIE],
           "the callback told of each entry that stays idle for its TTL.",
           driver("pipe_mgr_idle_register_tmo_cb"), when=ages, place=(80, 3)),
    Family("set_ttl", "{p}{t}_set_ttl", [SESS, DEV, ENTRY_HDL, TTL],
           "sets an entry's TTL.", driver("pipe_mgr_mat_ent_set_idle_ttl", ", 0, 0"), when=ages,
           place=(80, 4)),
    Family("get_ttl", "{p}{t}_get_ttl", [SESS, DEV, ENTRY_HDL, OUT_TTL],
           "reads an entry's TTL.", driver("pipe_mgr_mat_ent_get_idle_ttl"), when=ages,
           place=(80, 5)),
    Family("reset_ttl", "{p}{t}_reset_ttl", [SESS, DEV, ENTRY_HDL],
           "starts an entry's idle time again.", driver("pipe_mgr_mat_ent_reset_idle_ttl"),
           when=ages, place=(80, 6)),
    Family("update_hit_state", "{p}{t}_update_hit_state", [SESS, DEV, UPDATE_CB, COOKIE],
           "brings the hit state of the table's entries up to date, then calls the callback.",
           driver("pipe_mgr_idle_time_update_hit_state"), when=ages, place=(80, 7)),
    Family("get_hit_state", "{p}{t}_get_hit_state", [SESS, DEV, ENTRY_HDL, OUT_HIT_STATE],
           "reads an entry's hit state. The out place is written even when the driver fails: "
           "look at the status first.", engine("get_hit_state"), when=ages, place=(80, 8)),
]
