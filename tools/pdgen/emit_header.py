"""Emits the public header orbisk_switch/pd.h: shared declarations, the
action enum, the host records, and every exported prototype grouped by
table."""

import textwrap

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
 * Families, for <t> a table, <a> an action of it or of a profile, <f> a key
 * field of a table, <r> an action profile or, in the resources' families, a
 * counter, meter or register:"""


def family_list():
    """The family list of the header's opening comment, one entry per family
    from its documentation line, in the order of a table's declarations."""
    o = []
    for fam in families.documented_families():
        o += textwrap.wrap(fam.doc_line(), 78, initial_indent=" *  ", subsequent_indent=" *      ",
                           break_on_hyphens=False)
    services = families.item_families()
    if services:
        o += [" *", " * Services of the program, for <h> a hash calculation, <v> a parser value",
              " * set and <d> a learning digest:"]
        for fam in services:
            o += textwrap.wrap(fam.doc_line(), 78, initial_indent=" *  ", subsequent_indent=" *      ",
                               break_on_hyphens=False)
    return o + [" */"]


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


def resource_sections(prog):
    """Each group's functions of counters, meters and registers, by
    resource, then the group's functions that stand once, documented."""
    o = []
    for g in families.GROUPS:
        fams = [f for f in g.FAMILIES if f.each in ("resource", "service")]
        if not fams:
            continue
        o.append("/* %s */" % ("-" * 66))
        o.append("/* %s */" % g.TITLE)
        o.append("/* %s */" % ("-" * 66))
        o.append("")
        for r in prog.resources.values():
            fns = [f for f in families.resource_functions(prog, r) if f.kind in fams]
            if not fns:
                continue
            o.append("/* %s: %s */" % (r.name, g.describe(r)))
            for f in fns:
                o.append(f.proto() + ";")
            o.append("")
        for f in families.service_functions(g):
            o += textwrap.wrap(f.kind.doc, 74, initial_indent="/* ", subsequent_indent=" * ")
            o[-1] += " */"
            o.append(f.proto() + ";")
        o.append("")
    return o


def emit(prog):
    o = [INTRO] + family_list() + ["#ifndef ORBISK_SWITCH_PD_H", "#define ORBISK_SWITCH_PD_H", "",
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
    for group in families.GROUPS:
        o += group.header_lines(prog) if hasattr(group, "header_lines") else []
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
    o.append("/* ---------------------------------------- lifecycle and dispatch --- */")
    o.append("")
    for f in families.frame_functions():
        o.append("/* %s */" % f.kind.doc)
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
            o.append(f.proto() + ";")
        o.append("")
    o.append("/* " + "=" * 66 + " */")
    o.append("/* Action profiles: members, selector groups */")
    o.append("/* " + "=" * 66 + " */")
    o.append("")
    for p in prog.profiles:
        fns = families.profile_functions(p)
        if not fns:
            continue
        o.append("/* %s: action data table 0x%08x, selector table 0x%08x;"
                 % (p.name, p.adt, p.sel))
        o.append(" * entries of %s name its members and groups." % p.match_table)
        o += textwrap.wrap("Actions: %s. */" % ", ".join(a.name for a in p.actions), 78,
                           initial_indent=" * ", subsequent_indent=" * ")
        for f in fns:
            o.append(f.proto() + ";")
        o.append("")
    o += resource_sections(prog)
    o.append("/* ------------------------------------ action data read back --- */")
    o.append("")
    for a in prog.actions:
        for f in families.action_functions(a):
            o.append(f.proto() + ";")
    for section, fns in families.item_sections(prog):
        o.append("")
        o.append("/* %s */" % (" " + section + " ---").rjust(66, "-"))
        item = None
        for f in fns:
            if f.item is not item:
                item = f.item
                o.append("")
                if item is not None:
                    o += textwrap.wrap("/* %s */" % item.describe(), 78, subsequent_indent=" * ",
                                       break_on_hyphens=False)
            o.append(f.proto() + ";")
    o += ["", "#ifdef __cplusplus", "}", "#endif", "", "#endif", ""]
    return "\n".join(o)
