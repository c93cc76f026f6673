"""Snapshots: create, delete, set the trigger, read the captures. The
trigger's byte swap over the record, by the layout bit 1 of the handle
selects, and the capture copy are written once in the engine
(src/pd/snapshots.cpp) over the snapshot layout descriptors."""

from catalogue import PREFIX

from .base import Arg, ItemFamily

RECORD = PREFIX + "snapshot_record_t"

TGT = Arg("pd_dev_target", "dev_tgt", "target")
START = Arg("uint8_t", "start_stage", "start stage")
END = Arg("uint8_t", "end_stage", "end stage")
DIRECTION = Arg("uint32_t", "direction", "direction")
OUT_HDL = Arg("uint32_t *", "snapshot_hdl", "out snapshot handle")
HDL = Arg("uint32_t", "snapshot_hdl", "snapshot handle")
VALUE = Arg("const %s *" % RECORD, "trig_spec", "trigger value")
MASK = Arg("const %s *" % RECORD, "trig_mask", "trigger mask")
PIPE = Arg("uint32_t", "pipe", "pipe")
CAPTURES = Arg("%s *" % RECORD, "capture", "out captures")
CTRL = Arg("pd_snapshot_capture_ctrl *", "capture_ctrl", "out control record")
OUT_COUNT = Arg("uint32_t *", "num_captures", "out count")


def snapshot(op, args, doc, body):
    return ItemFamily(op, "{p}" + op, args, doc, body, section="snapshots")


def engine(call):
    return lambda f: ["  return %s(%s);" % (call, ", ".join(n for _, n in f.args))]


INCLUDES = ["export.h", "snapshots.h", "orbisk_switch/pd_driver.h"]

FAMILIES = [
    snapshot("snapshot_create", [TGT, START, END, DIRECTION, OUT_HDL],
             "creates a snapshot of the stages from start to end of a device's pipe.",
             lambda f: ["  return bf_snapshot_create(dev_tgt.device_id, dev_tgt.dev_pipe_id, "
                        "start_stage, end_stage, direction, snapshot_hdl);"]),
    snapshot("snapshot_delete", [HDL], "deletes it.",
             lambda f: ["  return bf_snapshot_delete(snapshot_hdl);"]),
    snapshot("snapshot_capture_trigger_set", [HDL, VALUE, MASK],
             "arms it with a trigger value and mask, most significant byte first; the caller's "
             "records are left alone.", engine("snapshot_trigger_set")),
    snapshot("snapshot_capture_data_get", [HDL, PIPE, CAPTURES, CTRL, OUT_COUNT],
             "reads up to P4_PD_ORBISK_SWITCH_SNAPSHOT_CAPTURES captured records as the "
             "driver made them. Status 2 when the library cannot allocate, 0x20 for a driver "
             "record size below the record's; otherwise the capture's status, after the copy.",
             engine("snapshot_capture_data_get")),
]


def header_lines(prog):
    sv = prog.services
    return ["/* The snapshot record: the program's header vector fields, packed with no",
            " * alignment, as a trigger value or mask and as one captured record. */",
            "#define P4_PD_ORBISK_SWITCH_SNAPSHOT_RECORD_BYTES %d" % sv.snapshot_bytes,
            "/* The most captured records one read gives: the caller's array holds as many. */",
            "#define P4_PD_ORBISK_SWITCH_SNAPSHOT_CAPTURES %d" % sv.capture_records,
            "typedef struct %s {" % RECORD[:-2],
            "  uint8_t bytes[P4_PD_ORBISK_SWITCH_SNAPSHOT_RECORD_BYTES];",
            "} %s;" % RECORD,
            "PD_STATIC_ASSERT(sizeof(%s) == %d, \"the snapshot record is %d bytes\");" % (
                RECORD, sv.snapshot_bytes, sv.snapshot_bytes), ""]
