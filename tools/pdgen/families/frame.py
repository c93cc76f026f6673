"""Frame: the library's start and end, the device callbacks the driver calls,
and the action enum's names. Written by hand in the engine (frame.cpp); the
generator owns their declarations and the action name table."""

from catalogue import PREFIX

from .base import Arg, Family

DEVICE = Arg("uint32_t", "device_id", "device id")
JSON = Arg("void *", "cjson_object", "JSON object")


def program(id, args, doc, result="pd_status"):
    return Family(id, "{p}" + id, args, doc, result=result, each="program")


FAMILIES = [
    program("init", [], "Registers with the driver; call before anything else.", result="void"),
    program("cleanup", [], "Deregisters from the driver."),
    program("dev_remove", [DEVICE], "Forgets a device's member-selection state."),
    program("dev_log", [DEVICE, JSON], "Writes a device's member-selection state into a JSON object."),
    program("dev_restore", [DEVICE, JSON], "Reads a device's member-selection state back from one."),
    program("device_state_cleanup", [], "Nothing to release: kept for agents that call it.", result="void"),
    program("restore_virtual_dev_state",
            [Arg("pd_sess_hdl", "sess_hdl", "sess"), DEVICE, Arg("uint32_t", "restore_flags", "flags"),
             Arg("void *", "driver_state", "driver state"), Arg("void *", "reserved", "reserved")],
            "After a hitless restart: has the driver replay every member, group and membership "
            "it holds into ha_restore_state_from_adt_sel."),
    program("ha_restore_state_from_adt_sel",
            [Arg("pd_sess_hdl", "sess_hdl", "sess"), DEVICE, Arg("pd_tbl_hdl", "adt_hdl", "action data table"),
             Arg("pd_act_fn_hdl", "act_fn_hdl", "action"), Arg("pd_grp_hdl", "grp_hdl", "group"),
             Arg("pd_mbr_hdl", "mbr_hdl", "member"), Arg("uint32_t", "flags", "flags")],
            "Rebuilds one member, group or membership in its profile's member-selection state; "
            "a table of no profile is passed over.", result="void"),
    program("action_enum_to_string", [Arg("uint32_t", "action", "action")],
            "Full name of an action; NULL past the last.", result="const char *"),
    program("action_string_to_enum", [Arg("const char *", "name", "name")],
            "Action of a full name; P4_PD_ORBISK_SWITCH_ACTION_COUNT for none.",
            result="p4_pd_orbisk_switch_action_names_t"),
]

# Objects the library exports besides its functions.
EXPORTED_OBJECTS = ["bf_drv_hdl", PREFIX + "action_name_strings"]


def files(prog):
    """The frame's tables: the action names, exported, and the member-selection
    state of each profile, with the header frame.cpp reads them through."""
    h = ["// Generated from the catalogue. Do not edit.", "#pragma once", "",
         '#include "orbisk_switch/pd_driver.h"', "", "namespace orbisk::pd {", "",
         "// A profile's member-selection state, by name.",
         "struct ProfileSlot {", "  const char *name;", "  pd_ms_state **state;", "};",
         "// Every profile's, in the order of creation.",
         "extern const ProfileSlot kProfileSlots[%d];" % len(prog.profiles), "",
         "}  // namespace orbisk::pd", "",
         "// Each profile's state by itself, for the functions of one profile."] + [
         "extern pd_ms_state *pd_ms_slot_%s;" % p.state_slot for p in prog.profiles] + [""]
    c = ["// Generated from the catalogue. Do not edit.", '#include "export.h"', '#include "pd_frame.h"', "",
         "using namespace orbisk::pd;", ""]
    return {"pd_frame.h": "\n".join(h), "pd_frame.cpp": "\n".join(c + action_names(prog) + profile_slots(prog))}


def action_names(prog):
    """The action name table, exported."""
    o = ['extern "C" {',
         "PD_EXPORT_DATA extern const char *const %saction_name_strings[%d];" % (PREFIX, len(prog.enum_names)),
         "const char *const %saction_name_strings[%d] = {" % (PREFIX, len(prog.enum_names))]
    for n in prog.enum_names:
        o.append('    "%s%s",' % (PREFIX, n))
    o += ["};", "}", ""]
    return o


def profile_slots(prog):
    """The member-selection state of each profile, in the order of creation."""
    o = []
    for p in prog.profiles:
        o.append("pd_ms_state *pd_ms_slot_%s = nullptr;" % p.state_slot)
    o.append("")
    o.append("const ProfileSlot orbisk::pd::kProfileSlots[%d] = {" % len(prog.profiles))
    for p in prog.profiles:
        o.append('    {"%s", &pd_ms_slot_%s},' % (p.name, p.state_slot))
    o.append("};")
    o.append("")
    return o
