"""Hash calculations: the ten functions of each of the program's hash
calculations. The value / handle mapping, the attribute records and the byte
stream of calculate_hash_value are written once in the engine
(src/pd/hash_calc.cpp); each function hands it the calculation's handles."""

from .base import SESS, Arg, ItemFamily
from .packing import hx

DEV = Arg("uint32_t", "dev_id", "device id")
INPUT = Arg("uint32_t", "input", "input")
OUT_INPUT = Arg("uint32_t *", "input", "out input")
ALGORITHM = Arg("uint32_t", "algorithm", "algorithm")
OUT_ALGORITHM = Arg("uint32_t *", "algorithm", "out algorithm")
SEED = Arg("uint64_t", "seed", "seed")
OUT_SEED = Arg("uint64_t *", "seed", "out seed")
COUNT = Arg("uint32_t", "count", "count")
OUT_COUNT = Arg("uint32_t *", "count", "out count")
CAPACITY = Arg("uint32_t", "capacity", "capacity")
ATTRS = Arg("const pd_hash_calc_attribute *", "attrs", "attributes")
OUT_ATTRS = Arg("pd_hash_calc_attribute *", "attrs", "out attributes")
WIDTHS = Arg("const uint32_t *", "widths", "field widths")
HASH = Arg("uint8_t *", "hash", "out hash")
HASH_LEN = Arg("uint32_t", "hash_len", "hash length")


def calcs(prog):
    return prog.services.hash_calcs


def engine(call, *handles):
    """A body that calls the engine with the calculation's handles first."""
    def body(f):
        hs = [hx(getattr(f.item, h)) for h in handles]
        return ["  return %s(%s);" % (call, ", ".join(hs + [n for _, n in f.args]))]
    return body


def driver(call, tail=""):
    """A body that forwards to the driver, the calculation's handle third."""
    def body(f):
        names = [n for _, n in f.args]
        return ["  return %s(%s, %s, %s%s);" % (call, names[0], names[1], hx(f.item.handle),
                                               "".join(", " + n for n in names[2:]) + tail)]
    return body


def hash_family(op, args, doc, body):
    return ItemFamily("hash_calc_" + op, "{p}hash_calc_{i}_" + op, args, doc, body,
                         items=calcs, label="<h>", section="hash calculations")


INCLUDES = ["export.h", "hash_calc.h", "orbisk_switch/pd_driver.h"]

FAMILIES = [
    hash_family("input_set", [SESS, DEV, INPUT],
                "selects the input field list: 0 is the calculation's own, any other value "
                "sends handle 0.", engine("hash_input_set", "handle", "input")),
    hash_family("input_get", [SESS, DEV, OUT_INPUT],
                "reads it back as 0; status 3, out place untouched, when the driver reports "
                "another handle (a failing driver included).", engine("hash_input_get", "handle", "input")),
    hash_family("algorithm_set", [SESS, DEV, ALGORITHM],
                "selects the algorithm: 0 is the calculation's own, any other value sends "
                "handle 0.", engine("hash_algorithm_set", "handle", "algorithm")),
    hash_family("algorithm_get", [SESS, DEV, OUT_ALGORITHM],
                "reads it back as 0; status 3 as for the input.",
                engine("hash_algorithm_get", "handle", "algorithm")),
    hash_family("seed_set", [SESS, DEV, SEED], "sets the seed.",
                driver("pipe_mgr_hash_calc_seed_set")),
    hash_family("seed_get", [SESS, DEV, OUT_SEED], "reads the seed.",
                driver("pipe_mgr_hash_calc_seed_get")),
    hash_family("input_field_attribute_set", [SESS, DEV, INPUT, COUNT, ATTRS],
                "sets the attributes of count fields.",
                engine("hash_attribute_set", "handle", "input")),
    hash_family("input_field_attribute_count_get", [SESS, DEV, INPUT, OUT_COUNT],
                "counts the fields with attributes; status 3 for an input other than 0 while "
                "the calculation uses its own.", engine("hash_attribute_count_get", "handle", "input")),
    hash_family("input_field_attribute_get", [SESS, DEV, INPUT, CAPACITY, OUT_ATTRS, OUT_COUNT],
                "reads up to capacity of them; the count is 0 unless the read succeeds; status "
                "3 as for the count.", engine("hash_attribute_get", "handle", "input")),
    hash_family("calculate_hash_value", [SESS, DEV, COUNT, ATTRS, WIDTHS, HASH, HASH_LEN],
                "hashes the fields' values, first field first, as one unbroken big-endian bit "
                "string right-aligned in whole bytes; a value wider than its width spills into "
                "the field before it.", engine("hash_calculate", "handle")),
]
