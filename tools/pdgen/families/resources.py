"""Counters, meters and registers: the functions of each one, and the
generic meter, WRED and register calls on any such table by handle. The
rules the same across a family (the swapped counter record and flag bit 0,
the meter units and colour mode, the per-pipe register reads) live once in
the engine (src/pd/counters.cpp, meters.cpp, registers.cpp); a function here
is one line that names its resource's handles."""

from .base import DEV, ENTRY_HDL, SESS, TGT, Arg, Family
from .packing import hx

TITLE = "counters, meters and registers"


def direct(r, a=None):
    return r.direct


def indexed(r, a=None):
    return not r.direct


def cls(name):
    return lambda r: r.cls == name


R_DEV = Arg("uint32_t", "dev_id", "device id", when=direct)
R_ENTRY = Arg("pd_entry_hdl", "entry_hdl", "entry handle", when=direct)
R_TGT = Arg("pd_dev_target", "dev_tgt", "target", when=indexed)
R_INDEX = Arg("uint32_t", "index", "index", when=indexed)
INDEX = Arg("uint32_t", "index", "index")
FLAGS = Arg("uint32_t", "flags", "flags")
COOKIE = Arg("void *", "cb_cookie", "cookie")
TBL = Arg("pd_tbl_hdl", "tbl_hdl", "table handle")
VALUES = Arg("uint8_t *", "register_values", "out values")
VALUE = Arg("const uint8_t *", "register_value", "value")
ELEMENT = Arg("const pd_register_element *", "register_value", "element")
QUERY = Arg("pd_register_query *", "register_values", "query record")
FIRST = Arg("uint32_t", "index", "first index")
COUNT = Arg("uint32_t", "count", "count")
METER_SPEC = Arg("const pd_meter_spec *", "meter_spec", "spec")
OUT_METER_SPEC = Arg("pd_meter_spec *", "meter_spec", "out spec")
ADJUST = Arg("int32_t", "bytecount", "adjustment")
OUT_ADJUST = Arg("int32_t *", "bytecount", "out adjustment")
PRE_COLOR = Arg("bool", "has_pre_color", "has pre-colour")
STAT_CB = Arg("pd_stat_sync_cb", "cb_fn", "callback")
REG_CB = Arg("pd_register_sync_cb", "cb_fn", "callback")


def names(f):
    return ", ".join(n for _, n in f.args)


def call(fn, *lead):
    """A body that calls fn with the leading constants, then every argument."""
    return lambda f: ["  return %s(%s);" % (fn, ", ".join(
        [x(f.resource) if callable(x) else x for x in lead] + [n for _, n in f.args]))]


def driver(fn, tail=""):
    """A body that forwards to the driver, the resource's table handle third."""
    def body(f):
        n = [x for _, x in f.args]
        return ["  return %s(%s, %s, %s%s);" % (fn, n[0], n[1], hx(f.resource.driver_handle),
                                               "".join(", " + x for x in n[2:]) + tail)]
    return body


def by_kind(direct_body, indexed_body):
    return lambda f: (direct_body if f.resource.direct else indexed_body)(f)


def table(r):
    return hx(r.driver_handle)


def unit(r):
    return "true" if r.unit == "packets" else "false"


def describe(r):
    if r.cls == "register":
        return "register 0x%08x, %d indices of %d bit%s per pipe" % (
            r.handle, r.size, r.bits, "" if r.bits == 1 else "s")
    what = "%s 0x%08x" % (r.cls, r.handle)
    if r.direct:
        what += ", direct on %s (0x%08x)" % (r.table.name, r.table.handle)
    else:
        what += ", %d cells by index" % r.size
    if r.is_meter:
        what += ", in " + r.unit
    return what


INCLUDES = ["export.h", "counters.h", "meters.h", "registers.h", "orbisk_switch/pd_driver.h"]

FAMILIES = [
    # Counters.
    Family("counter_read", "{p}counter_read_{r}", [SESS, R_DEV, R_TGT, R_ENTRY, R_INDEX, FLAGS,
                                                   Arg("pd_counter_value *", "counter_value", "out value")],
           "reads a counter cell, from the chip first when bit 0 of the flags is set; "
           "untouched on failure.",
           by_kind(call("counter_read_direct", table), call("counter_read_indexed", table)),
           each="resource", when=cls("counter"), place=(0, 0)),
    Family("counter_write", "{p}counter_write_{r}", [SESS, R_DEV, R_TGT, R_ENTRY, R_INDEX,
                                                     Arg("pd_counter_value", "counter_value", "value")],
           "writes a counter cell.",
           by_kind(call("counter_write_direct", table), call("counter_write_indexed", table)),
           each="resource", when=cls("counter"), place=(0, 1)),
    Family("counter_hw_sync", "{p}counter_hw_sync_{r}", [SESS, TGT, STAT_CB, COOKIE],
           "brings every cell of a counter from the chip; the driver calls the callback when done.",
           by_kind(driver("pipe_mgr_direct_stat_database_sync"), driver("pipe_mgr_stat_database_sync")),
           each="resource", when=cls("counter"), place=(0, 2)),
    # Meters.
    Family("meter_set", "{p}meter_set_{r}", [SESS, R_DEV, R_TGT, R_ENTRY, R_INDEX, METER_SPEC],
           "sets a meter cell's rates and bursts in the meter's unit; a type above 1 is logged "
           "and taken as colour-aware.",
           by_kind(call("meter_set_direct", table, lambda r: hx(r.handle)),
                   call("meter_set_indexed", table, unit)),
           each="resource", when=cls("meter"), place=(1, 0)),
    Family("meter_read", "{p}meter_read_{r}", [SESS, R_DEV, R_TGT, R_ENTRY, R_INDEX, OUT_METER_SPEC],
           "reads a meter cell back: values cut to 32 bits, the driver's type as it is; "
           "untouched on failure.",
           by_kind(call("meter_read_direct", table), call("meter_read_indexed", table)),
           each="resource", when=cls("meter"), place=(1, 1)),
    Family("meter_bytecount_adjust_set", "{p}meter_bytecount_adjust_set_{r}", [SESS, TGT, ADJUST],
           "sets the bytes a meter adds to each packet's length.",
           lambda f: ["  return pipe_mgr_meter_set_bytecount_adjust(sess_hdl, dev_tgt, %s, bytecount);"
                      % hx(f.resource.handle)],
           each="resource", when=cls("meter"), place=(1, 2)),
    Family("meter_bytecount_adjust_get", "{p}meter_bytecount_adjust_get_{r}", [SESS, TGT, OUT_ADJUST],
           "reads that adjustment back.",
           lambda f: ["  return pipe_mgr_meter_get_bytecount_adjust(sess_hdl, dev_tgt, %s, bytecount);"
                      % hx(f.resource.handle)],
           each="resource", when=cls("meter"), place=(1, 3)),
    # Registers.
    Family("register_hw_sync", "{p}register_hw_sync_{r}", [SESS, TGT, REG_CB, COOKIE],
           "brings every cell of a register from the chip; the driver calls the callback when done.",
           driver("pipe_stful_database_sync"), each="resource", when=cls("register"), place=(2, 0)),
    Family("register_read", "{p}register_read_{r}", [SESS, TGT, INDEX, FLAGS, VALUES,
                                                     Arg("uint32_t *", "value_count", "out count")],
           "reads one index, a byte per pipe (room for one per pipe), from the chip with bit 0 of "
           "the flags; 2 when memory runs out.",
           call("register_read", table), each="resource", when=cls("register"), place=(2, 1)),
    Family("register_write", "{p}register_write_{r}", [SESS, TGT, INDEX, VALUE],
           "writes one index: any nonzero byte is 1.",
           call("register_write", table), each="resource", when=cls("register"), place=(2, 2)),
    Family("register_reset_all", "{p}register_reset_all_{r}", [SESS, TGT],
           "every cell back to the register's initial value.",
           driver("pipe_stful_table_reset", ", nullptr"), each="resource", when=cls("register"),
           place=(2, 3)),
    Family("register_write_all", "{p}register_write_all_{r}", [SESS, TGT, VALUE],
           "every cell to one value: any nonzero byte is 1.",
           call("register_write_all", table), each="resource", when=cls("register"), place=(2, 4)),
    Family("register_range_reset", "{p}register_range_reset_{r}", [SESS, TGT, FIRST, COUNT],
           "count cells from the first back to the initial value.",
           driver("pipe_stful_table_reset_range", ", 0"), each="resource", when=cls("register"),
           place=(2, 5)),
    Family("register_range_read", "{p}register_range_read_{r}",
           [SESS, TGT, FIRST, COUNT, FLAGS, Arg("uint32_t *", "num_actually_read", "out indices read"),
            VALUES, Arg("uint32_t *", "value_count", "out count")],
           "reads count indices: the values grouped by index, by pipe inside one, for the indices "
           "the driver read; 2 when memory runs out.",
           call("register_range_read", table), each="resource", when=cls("register"), place=(2, 6)),
    # On any meter, WRED or register table by handle.
    Family("packets_meter_set", "{p}packets_meter_set", [SESS, TGT, TBL, INDEX, METER_SPEC, PRE_COLOR],
           "Sets a cell of any packet meter table; a type above 1, or colour-aware without a "
           "pre-colour, ends the process.",
           call("meter_set_generic", "true"), each="service"),
    Family("packets_meter_read", "{p}packets_meter_read", [SESS, TGT, TBL, INDEX, OUT_METER_SPEC],
           "Reads a cell of any meter table back; untouched on failure.",
           lambda f: ["  return meter_read_indexed(tbl_hdl, sess_hdl, dev_tgt, index, meter_spec);"],
           each="service"),
    Family("bytes_meter_set", "{p}bytes_meter_set", [SESS, TGT, TBL, INDEX, METER_SPEC, PRE_COLOR],
           "Sets a cell of any byte meter table, with the same checks.",
           call("meter_set_generic", "false"), each="service"),
    Family("bytes_meter_read", "{p}bytes_meter_read", [SESS, TGT, TBL, INDEX, OUT_METER_SPEC],
           "Reads a cell of any meter table back, as packets_meter_read.",
           lambda f: ["  return meter_read_indexed(tbl_hdl, sess_hdl, dev_tgt, index, meter_spec);"],
           each="service"),
    Family("wred_set", "{p}wred_set", [SESS, TGT, TBL, INDEX,
                                       Arg("const pd_wred_spec *", "wred_spec", "spec")],
           "Sets a cell of any WRED table; the record goes as it is.",
           lambda f: ["  return wred_set(sess_hdl, dev_tgt, tbl_hdl, index, wred_spec);"],
           each="service"),
    Family("register_read_direct", "{p}register_read_direct", [SESS, DEV, TBL, ENTRY_HDL, FLAGS, QUERY],
           "Reads an entry's cell of any direct register into the caller's query record.",
           lambda f: ["  return pipe_stful_direct_ent_query(sess_hdl, dev_id, tbl_hdl, entry_hdl, "
                      "register_values, flags & PD_READ_FROM_HW);"], each="service"),
    Family("register_read_indirect", "{p}register_read_indirect", [SESS, TGT, TBL, INDEX, FLAGS, QUERY],
           "Reads an index of any register into the caller's query record.",
           lambda f: ["  return pipe_stful_ent_query(sess_hdl, dev_tgt, tbl_hdl, index, "
                      "register_values, flags & PD_READ_FROM_HW);"], each="service"),
    Family("register_write_direct", "{p}register_write_direct", [SESS, DEV, TBL, ENTRY_HDL, ELEMENT],
           "Writes an entry's cell of any direct register; the one handle names the table and "
           "the register, and the device goes as one byte.",
           lambda f: ["  return register_write_direct(sess_hdl, dev_id, tbl_hdl, entry_hdl, register_value);"],
           each="service"),
    Family("register_write_indirect", "{p}register_write_indirect", [SESS, TGT, TBL, INDEX, ELEMENT],
           "Writes an index of any register with the caller's element.",
           lambda f: ["  pd_register_element e = *register_value;",
                      "  return pipe_stful_ent_set(sess_hdl, dev_tgt, tbl_hdl, index, &e, 0);"],
           each="service"),
    Family("register_hw_sync_direct", "{p}register_hw_sync_direct", [SESS, DEV, TBL, REG_CB, COOKIE],
           "Brings any direct register from the chip.",
           lambda f: ["  return pipe_stful_direct_database_sync(%s);" % names(f)], each="service"),
    Family("register_hw_sync_indirect", "{p}register_hw_sync_indirect", [SESS, TGT, TBL, REG_CB, COOKIE],
           "Brings any register from the chip.",
           lambda f: ["  return pipe_stful_database_sync(%s);" % names(f)], each="service"),
    Family("register_reset_all_indirect", "{p}register_reset_all_indirect", [SESS, TGT, TBL],
           "Every cell of any register back to its initial value.",
           lambda f: ["  return pipe_stful_table_reset(%s, nullptr);" % names(f)], each="service"),
    Family("register_range_reset_indirect", "{p}register_range_reset_indirect",
           [SESS, TGT, TBL, FIRST, COUNT], "A range of any register back to its initial value.",
           lambda f: ["  return pipe_stful_table_reset_range(%s, 0);" % names(f)], each="service"),
    Family("register_write_all_indirect", "{p}register_write_all_indirect", [SESS, TGT, TBL, ELEMENT],
           "Every cell of any register to the caller's element.",
           lambda f: ["  pd_register_element e = *register_value;",
                      "  return pipe_stful_table_reset(sess_hdl, dev_tgt, tbl_hdl, &e);"],
           each="service"),
]
