"""Emits the public header orbisk_switch/pd.h: shared declarations, the
action enum, the host records, and every exported prototype grouped by
table."""

import families
from catalogue import PREFIX

INTRO = """\
/* Control-plane interface of the compiled program orbisk_switch (NAT and
 * VXLAN form): one function for each table, for each table and action, or
 * for each resource.
 *
 * Generated from catalogue/ by tools/pdgen. Do not edit by hand: change the
 * catalogue, rebuild, and copy build/generated/include/orbisk_switch/pd.h
 * over this file (a test fails while the two differ).
 *
 * Conventions shared by every function below:
 *  - The result is the driver's status, unchanged (0 is BF_SUCCESS), except
 *    where a comment names a status the library makes itself.
 *  - Host records are host byte order. A key or parameter field is as wide as
 *    the smallest of 8, 16 or 32 bits that holds it; 128-bit addresses are
 *    byte arrays in network order. Bits above a field's width are passed on,
 *    not clipped.
 *  - A ternary key field has a partner <field>_mask; a prefix field has a
 *    partner <field>_prefix_length. Ternary tables take an entry priority.
 *  - Every record and string lives on the caller's stack for one call; the
 *    driver copies what it keeps. Nothing is allocated on a write.
 *
 * Families, for <t> a table and <a> an action of it:
 *  <t>_table_add_with_<a>(sess, target, match spec, [priority], [action
 *      spec], [meter spec], [ttl], out entry handle): adds an entry.
 *  <t>_table_modify_with_<a>(sess, device id, entry handle, [action spec],
 *      [meter spec]) and <t>_table_modify_with_<a>_by_match_spec(sess,
 *      target, match spec, [priority], [action spec], [meter spec]):
 *      replace an entry's action and its data.
 *  <t>_table_delete(sess, device id, entry handle),
 *  <t>_table_delete_by_match_spec(sess, target, match spec, [priority]),
 *  <t>_match_spec_to_entry_hdl(sess, target, match spec, [priority], out).
 *  <t>_get_entry(sess, device id, entry handle, read from hardware, [out
 *      match spec], [out priority], out action name or NULL, out action
 *      spec, out action enum or NULL, [out is-default]): reads an entry
 *      back across all pipes. Status 15 when the driver returns a record the
 *      table cannot hold.
 *  <t>_get_entry_count, <t>_get_first_entry_handle,
 *  <t>_get_next_entry_handles: walk a table.
 *  <t>_set_default_action_<a>(sess, target, [action spec], [meter spec],
 *      out entry handle), <t>_table_get_default_entry (status 15 for a
 *      record the table cannot hold), <t>_table_get_default_entry_handle,
 *  <t>_table_reset_default_entry: the action taken on a miss.
 *  unbuild_key_<t>, unbuild_mask_<t>, unbuild_action_spec_<a>: turn driver
 *      records read back into host records.
 */"""


def field_decl(ctype, name, array):
    if array:
        return "  %s %s[%d];" % (ctype, name, array)
    return "  %s %s;" % (ctype, name)


def describe(t):
    kind = {"none": "no key", "exact": "exact match", "ternary": "ternary match",
            "prefix": "longest prefix match",
            "partitioned_prefix": "partitioned longest prefix match"}[t.match]
    bits = [f"table 0x{t.handle:08x}", f"pipeline {t.pipeline}", kind]
    if t.keyed:
        bits.append(f"{t.key_bytes} key bytes ({t.key_bits} bits)")
    if t.idle_timeout:
        bits.append("idle timeout")
    if t.resource:
        bits.append("entries carry " + t.resource)
    if t.indirect:
        bits.append("entries name a member or group of " + t.profile.name)
    return ", ".join(bits)


def emit(prog):
    o = [INTRO, "#ifndef ORBISK_SWITCH_PD_H", "#define ORBISK_SWITCH_PD_H", "",
         "#include <stdbool.h>", "", '#include "orbisk_switch/pd_records.h"',
         '#include "orbisk_switch/pd_types.h"', "",
         "#ifdef __cplusplus", 'extern "C" {', "#endif", ""]
    o.append("/* Client handle given by the driver at init; read only. */")
    o.append("extern uint32_t bf_drv_hdl;")
    o.append("")
    o.append("/* Actions of the program, one value per action name, whichever table")
    o.append(" * uses it. P4_PD_ORBISK_SWITCH_ACTION_COUNT stands for no action. */")
    o.append("typedef enum p4_pd_orbisk_switch_action_names {")
    for i, n in enumerate(prog.enum_names):
        o.append("  %s%s = %d," % (PREFIX, n, i))
    o.append("  P4_PD_ORBISK_SWITCH_ACTION_COUNT = %d" % len(prog.enum_names))
    o.append("} p4_pd_orbisk_switch_action_names_t;")
    o.append("")
    longest = max(len(PREFIX + n) for n in prog.enum_names) + 1
    o.append("/* Room for any full action name and its final zero. */")
    o.append("#define P4_PD_ORBISK_SWITCH_ACTION_NAME_MAX %d" % longest)
    o.append("")
    o.append("/* Full action names, with the prefix, in enum order. */")
    o.append("extern const char *const %saction_name_strings[%d];" % (PREFIX, len(prog.enum_names)))
    o.append("")
    o.append("/* ------------------------------------------------ action specs --- */")
    o.append("")
    for a in prog.actions:
        if not a.has_spec:
            continue
        o.append("typedef struct %s%s_action_spec {" % (PREFIX, a.name))
        for p in a.params:
            o.append(field_decl(p.ctype, p.field, None))
        o.append("} %s;" % a.spec_type)
        o.append("")
    o.append("/* Any action's parameters; which one is told beside it. */")
    o.append("typedef union p4_pd_orbisk_switch_action_spec_u {")
    for a in prog.actions:
        if a.has_spec:
            o.append("  %s %s;" % (a.spec_type, a.name))
    o.append("} p4_pd_orbisk_switch_action_spec_u;")
    o.append("")
    o.append("/* An action and its parameters, as a default entry or a member reads back. */")
    o.append("typedef struct p4_pd_orbisk_switch_action_specs {")
    o.append("  p4_pd_orbisk_switch_action_names_t name;")
    o.append("  p4_pd_orbisk_switch_action_spec_u u;")
    o.append("} p4_pd_orbisk_switch_action_specs_t;")
    o.append("typedef p4_pd_orbisk_switch_action_specs_t pd_default_action_record;")
    o.append("PD_STATIC_ASSERT(sizeof(p4_pd_orbisk_switch_action_names_t) == 4, \"32-bit action enum\");")
    o.append("PD_STATIC_ASSERT(offsetof(p4_pd_orbisk_switch_action_specs_t, u) == 4,")
    o.append("                 \"parameters from the fourth byte on\");")
    o.append("")
    o.append("/* ---------------------------------------------------- lifecycle --- */")
    o.append("")
    o.append("/* Registers with the driver; call before anything else. */")
    fr = families.frame_functions()
    for f in fr:
        o.append(f.proto() + ";")
    o.append("")
    area = None
    for t in prog.tables:
        if t.area != area:
            area = t.area
            o.append("/* " + "=" * 66 + " */")
            o.append("/* %s */" % area)
            o.append("/* " + "=" * 66 + " */")
            o.append("")
        o.append("/* %s: %s */" % (t.name, describe(t)))
        if t.keyed:
            o.append("typedef struct %s%s_match_spec {" % (PREFIX, t.name))
            for ctype, name, arr in t.host_members():
                o.append(field_decl(ctype, name, arr))
            o.append("} %s;" % t.spec_type)
        for f in families.table_functions(t):
            if f.family in ("unbuild_key", "unbuild_mask"):
                continue
            o.append(f.proto() + ";")
        for f in families.table_functions(t):
            if f.family in ("unbuild_key", "unbuild_mask"):
                o.append(f.proto() + ";")
        o.append("")
    o.append("/* ------------------------------------ action data read back --- */")
    o.append("")
    for a in prog.actions:
        if a.has_spec:
            o.append(families.unbuild_action_fn(a).proto() + ";")
    o += ["", "#ifdef __cplusplus", "}", "#endif", "", "#endif", ""]
    return "\n".join(o)
