"""Parser value sets: the ten functions of each of the program's value sets.
Keys and masks are plain 32-bit values and pass through untouched; each call
is one forward with the set's handle inserted and the parser target taken
apart. Only the property calls do more, in the engine (src/pd/value_sets.cpp)."""

from .base import SESS, Arg, ItemFamily
from .packing import hx

DEV = Arg("uint32_t", "dev_id", "device id")
PRS_TGT = Arg("pd_parser_target", "prs_tgt", "parser target")
PROPERTY = Arg("uint32_t", "property", "property")
VALUE = Arg("uint32_t", "value", "value")
OUT_VALUE = Arg("uint32_t *", "value", "out value")
ARGUMENT = Arg("uint32_t", "argument", "argument")
KEY = Arg("uint32_t", "key", "key")
MASK = Arg("uint32_t", "mask", "mask")
OUT_KEY = Arg("uint32_t *", "key", "out key")
OUT_MASK = Arg("uint32_t *", "mask", "out mask")
ENTRY_HDL = Arg("pd_entry_hdl", "entry_hdl", "entry handle")
OUT_ENTRY_HDL = Arg("pd_entry_hdl *", "entry_hdl", "out entry handle")
COUNT = Arg("uint32_t", "count", "n")
OUT_HDLS = Arg("pd_entry_hdl *", "next_entry_handles", "out handles")
READ_FROM_HW = Arg("uint8_t", "read_from_hw", "read from hardware")
OUT_COUNT = Arg("uint32_t *", "count", "out count")

# The parser target as the driver takes it: device first, then after the
# set's handle its gress, pipe and parser id.
SCOPE = "prs_tgt.gress, prs_tgt.pipe_id, uint32_t(prs_tgt.parser_id)"


def sets(prog):
    return prog.services.value_sets


def forward(call, tail=""):
    """A forward: session, device, the set's handle, then the other arguments,
    a parser target given as its parts."""
    def body(f):
        names = [n for _, n in f.args]
        if names[1] == "prs_tgt":
            head = "%s, prs_tgt.device_id, %s, %s" % (names[0], hx(f.item.handle), SCOPE)
        else:
            head = "%s, %s, %s" % (names[0], names[1], hx(f.item.handle))
        rest = "".join(", " + n for n in names[2:])
        return ["  return %s(%s%s%s);" % (call, head, rest, tail)]
    return body


def engine(call):
    return lambda f: ["  return %s(%s, %s);" % (call, hx(f.item.handle), ", ".join(n for _, n in f.args))]


def pvs_family(op, args, doc, body):
    return ItemFamily("pvs_" + op, "{p}pvs_{i}_" + op, args, doc, body, items=sets,
                         label="<v>", section="parser value sets")


INCLUDES = ["export.h", "value_sets.h", "orbisk_switch/pd_driver.h"]

FAMILIES = [
    pvs_family("set_property", [SESS, DEV, PROPERTY, VALUE, ARGUMENT],
               "sets a driver property of the set.", engine("pvs_set_property")),
    pvs_family("get_property", [SESS, DEV, PROPERTY, OUT_VALUE, ARGUMENT],
               "reads one back; 0xFFFFFFFF in the out place on failure.",
               engine("pvs_get_property")),
    pvs_family("entry_add", [SESS, PRS_TGT, KEY, MASK, OUT_ENTRY_HDL],
               "adds a key and mask, as they are.", forward("pipe_mgr_pvs_entry_add")),
    pvs_family("entry_modify", [SESS, DEV, ENTRY_HDL, KEY, MASK],
               "gives an entry a new key and mask.", forward("pipe_mgr_pvs_entry_modify")),
    pvs_family("entry_delete", [SESS, DEV, ENTRY_HDL], "deletes an entry.",
               forward("pipe_mgr_pvs_entry_delete")),
    pvs_family("entry_get", [SESS, DEV, ENTRY_HDL, OUT_KEY, OUT_MASK],
               "reads an entry's key and mask.",
               forward("pipe_mgr_pvs_entry_get", ", nullptr, nullptr, nullptr")),
    pvs_family("entry_handle_get", [SESS, PRS_TGT, KEY, MASK, OUT_ENTRY_HDL],
               "finds the entry with this key and mask.", forward("pipe_mgr_pvs_entry_handle_get")),
    pvs_family("entry_get_first_entry_handle", [SESS, PRS_TGT, OUT_ENTRY_HDL],
               "starts a walk of the set.", forward("pipe_mgr_pvs_entry_get_first")),
    pvs_family("entry_get_next_entry_handles", [SESS, PRS_TGT, ENTRY_HDL, COUNT, OUT_HDLS],
               "goes on with a walk: up to n handles after this one.",
               forward("pipe_mgr_pvs_entry_get_next")),
    pvs_family("entry_get_count", [SESS, PRS_TGT, READ_FROM_HW, OUT_COUNT],
               "counts the set's entries.", forward("pipe_mgr_pvs_entry_get_count")),
]
