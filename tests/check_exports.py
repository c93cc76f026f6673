#!/usr/bin/env python3
"""Compares the dynamic symbols the built library defines with the names the
catalogue implies for the families built so far: nothing missing, nothing
extra. The names are derived here from the catalogue data alone, and each
family's size is checked against the count the program is known to have."""

import glob
import json
import os
import subprocess
import sys

P = "p4_pd_orbisk_switch_"


def main(lib, root):
    tables = []
    for path in sorted(glob.glob(os.path.join(root, "catalogue", "*.json"))):
        if not path.endswith("program.json"):
            tables += json.load(open(path)).get("tables", [])
    program = json.load(open(os.path.join(root, "catalogue", "program.json")))
    fam = {}

    def add(family, name):
        fam.setdefault(family, set()).add(name)

    for t in tables:
        n = t["name"]
        keyed = bool(t.get("fields"))
        direct = "profile" not in t
        ternary_or_prefix = t["match"] in ("ternary", "prefix", "partitioned_prefix")
        for a in t.get("actions", []):
            if "entry" in a["use"]:
                add("add", "%s%s_table_add_with_%s" % (P, n, a["name"]))
                add("modify", "%s%s_table_modify_with_%s" % (P, n, a["name"]))
                add("modify", "%s%s_table_modify_with_%s_by_match_spec" % (P, n, a["name"]))
            if "default" in a["use"]:
                add("set_default", "%s%s_set_default_action_%s" % (P, n, a["name"]))
        if keyed:
            for s in ("table_delete", "table_delete_by_match_spec", "match_spec_to_entry_hdl"):
                add(s, "%s%s_%s" % (P, n, s))
            add("unbuild_key", "unbuild_key_" + n)
            if ternary_or_prefix:
                add("unbuild_mask", "unbuild_mask_" + n)
        if direct:
            add("get_entry", "%s%s_get_entry" % (P, n))
        else:
            add("indirect_get_entry", "%s%s_get_entry" % (P, n))
            for s in ("add_entry", "add_entry_with_selector", "modify_entry",
                      "modify_entry_with_selector", "modify_entry_by_match_spec",
                      "modify_entry_with_selector_by_match_spec", "set_default_entry",
                      "set_default_entry_with_selector"):
                add("indirect", "%s%s_%s" % (P, n, s))
        # Schema text and widths.
        add("table_schema", "%s%s_schema" % (P, n))
        add("supports_entry_priority", "%s%s_supports_entry_priority" % (P, n))
        if keyed:
            add("match_spec_schema", "%s%s_match_spec_schema" % (P, n))
        for f in t.get("fields", []):
            field = f["name"][:-len("_valid")] if f["name"].endswith("_valid") else f["name"]
            add("field_width", "%s%s_%s_width" % (P, n, field))
        for s in ("get_entry_count", "get_first_entry_handle", "get_next_entry_handles",
                  "table_get_default_entry", "table_get_default_entry_handle",
                  "table_reset_default_entry"):
            add(s, "%s%s_%s" % (P, n, s))
        if "idle_timeout" in t.get("flags", []):
            for s in ("idle_tmo_enable", "idle_tmo_disable", "idle_params_get",
                      "idle_register_tmo_cb", "set_ttl", "get_ttl", "reset_ttl",
                      "update_hit_state", "get_hit_state"):
                add("idle", "%s%s_%s" % (P, n, s))
        for s in ("set_property", "get_property", "get_mat_table_handle",
                  "register_mat_update_cb"):
            add(s, "%s%s_%s" % (P, n, s))
        add("plcmt_data", "%s%s_get_plcmt_data" % (P, n))
        add("plcmt_decode", "%s%s_get_entry_from_plcmt_data" % (P, n))
        # Printers and counter labels.
        if keyed:
            add("match_spec_print", "%s%s_match_spec_print" % (P, n))
        add("plcmt_data_print", "%s%s_plcmt_data_print" % (P, n))
        if "counter_labels" in t.get("flags", []):
            add("counter_label", "%s%s_match_spec_stringify_for_counter" % (P, n))
            add("counter_label_entry", "%s%s_stringify_counter_match_spec" % (P, n))
    params = {}
    for t in tables:
        for a in t.get("actions", []):
            params[a["name"]] = a["params"]
    for p in program["profiles"]:
        for a in p["actions"]:
            params[a["name"]] = a["params"]
    for a, ps in params.items():
        if ps:
            add("unbuild_action_spec", "unbuild_action_spec_" + a)
        add("action_schema", "%s%s_schema" % (P, a))
        if ps:
            add("action_print", "%s%s_print" % (P, a))
    for p in program["profiles"]:
        add("profile_schema", "%s%s_schema" % (P, p["name"]))
        add("adt_plcmt_data_print", "%s%s_adt_plcmt_data_print" % (P, p["name"]))
    add("cli_schema", P + "cli_schema")
    # Value text and comparison.
    for t in tables:
        add("table_value", "%s%s_value" % (P, t["name"]))
        add("plcmt_data_value", "%s%s_plcmt_data_value" % (P, t["name"]))
        add("plcmt_data_eq_to_hw", "%s%s_plcmt_data_eq_to_hw" % (P, t["name"]))
        if t.get("fields"):
            add("match_spec_value", "%s%s_match_spec_value" % (P, t["name"]))
            add("match_specs_are_equal", "%s%s_match_specs_are_equal" % (P, t["name"]))
    for a, ps in params.items():
        add("action_value", "%s%s_value" % (P, a))
        if ps:
            add("action_specs_are_equal", "%s%s_action_specs_are_equal" % (P, a))
    for p in program["profiles"]:
        add("profile_plcmt_data_value", "%s%s_plcmt_data_value" % (P, p["name"]))
    for s in ("entry_value", "plcmt_data_value", "adt_plcmt_data_value", "plcmt_data_eq_to_hw"):
        add("value_dispatch", P + s)
    for form in ("v4addr_exact", "v4addr_lpm", "v4addr_ternary", "v6addr_exact", "v6addr_lpm",
                 "v6addr_ternary", "mac_exact", "mac_ternary"):
        add("address_print", P + "_print_" + form)
    # Dispatchers by handle.
    for s in ("entry_hdl_first", "entry_hdl_next", "entry_hdl_default", "member_hdl_first",
              "member_hdl_next", "stringify_counter_matchspec", "plcmt_data_print",
              "adt_plcmt_data_print"):
        add("dispatch", P + s)
    for p in program["profiles"]:
        for a in p["actions"]:
            add("add_member", "%s%s_add_member_with_%s" % (P, p["name"], a["name"]))
            add("modify_member", "%s%s_modify_member_with_%s" % (P, p["name"], a["name"]))
        for s in ("del_member", "get_member", "get_first_member", "get_next_members",
                  "get_act_prof_entry_count", "get_adt_table_handle", "register_adt_update_cb"):
            add("members", "%s%s_%s" % (P, p["name"], s))
        for s in ("create_group", "del_group", "add_member_to_group", "del_member_from_group",
                  "group_member_state_set", "group_member_state_get", "group_member_get_from_hash",
                  "set_dynamic_action_selection_fallback_member",
                  "reset_dynamic_action_selection_fallback_member", "get_first_group",
                  "get_next_groups", "get_first_group_member", "get_next_group_members",
                  "get_selector_group_count", "get_selector_group_member_count",
                  "get_word_llp_active_member_count", "get_word_llp_active_members",
                  "get_sel_table_handle", "register_callback", "sel_track_updates",
                  "register_sel_update_cb"):
            add("groups", "%s%s_%s" % (P, p["name"], s))
    for p in program["profiles"]:
        for s in ("get_plcmt_data", "sel_get_plcmt_data", "get_member_from_plcmt_data",
                  "get_full_member_info_from_plcmt_data"):
            add("profile_plcmt", "%s%s_%s" % (P, p["name"], s))
    for s in ("init", "cleanup", "dev_remove", "dev_log", "dev_restore", "device_state_cleanup",
              "action_enum_to_string", "action_string_to_enum", "restore_virtual_dev_state",
              "ha_restore_state_from_adt_sel"):
        add("frame", P + s)
    for c in program["counters"]:
        for s in ("counter_read_", "counter_write_", "counter_hw_sync_"):
            add("counter", P + s + c["name"])
    for m in program["meters"]:
        for s in ("meter_set_", "meter_read_", "meter_bytecount_adjust_set_",
                  "meter_bytecount_adjust_get_"):
            add("meter", P + s + m["name"])
    for s in ("packets_meter_set", "packets_meter_read", "bytes_meter_set", "bytes_meter_read",
              "wred_set"):
        add("meter_generic", P + s)
    for r in program["registers"]:
        for s in ("hw_sync_", "read_", "write_", "reset_all_", "write_all_", "range_reset_",
                  "range_read_"):
            add("register", P + "register_" + s + r["name"])
    for s in ("read_direct", "read_indirect", "write_direct", "write_indirect", "hw_sync_direct",
              "hw_sync_indirect", "reset_all_indirect", "range_reset_indirect",
              "write_all_indirect"):
        add("register_generic", P + "register_" + s)
    services = json.load(open(os.path.join(root, "catalogue", "services.json")))
    for h in services["hash_calculations"]:
        for s in ("input_set", "input_get", "algorithm_set", "algorithm_get", "seed_set",
                  "seed_get", "input_field_attribute_set", "input_field_attribute_count_get",
                  "input_field_attribute_get", "calculate_hash_value"):
            add("hash_calc", "%shash_calc_%s_%s" % (P, h["name"], s))
    for v in services["value_sets"]:
        for s in ("set_property", "get_property", "entry_add", "entry_modify", "entry_delete",
                  "entry_get", "entry_handle_get", "entry_get_first_entry_handle",
                  "entry_get_next_entry_handles", "entry_get_count"):
            add("pvs", "%spvs_%s_%s" % (P, v["name"], s))
    for d in services["digests"]:
        for s in ("register", "deregister", "notify_ack"):
            add("digest", "%s%s_%s" % (P, d["name"], s))
    for s in ("set_learning_timeout", "get_digest_entry_size", "get_digest_entry_field"):
        add("digest", P + s)
    for s in ("snapshot_create", "snapshot_delete", "snapshot_capture_trigger_set",
              "snapshot_capture_data_get"):
        add("snapshot", P + s)
    add("objects", "bf_drv_hdl")
    add("objects", P + "action_name_strings")

    known = {"add": 367, "modify": 734, "set_default": 171, "table_delete": 136,
             "table_delete_by_match_spec": 136, "match_spec_to_entry_hdl": 136,
             "unbuild_key": 136, "unbuild_mask": 54, "unbuild_action_spec": 150,
             "get_entry": 148, "get_entry_count": 154, "get_first_entry_handle": 154,
             "get_next_entry_handles": 154, "table_get_default_entry": 154,
             "table_get_default_entry_handle": 154, "table_reset_default_entry": 154,
             "idle": 153, "set_property": 154, "get_property": 154, "get_mat_table_handle": 154,
             "register_mat_update_cb": 154,
             "frame": 10, "objects": 2,
             "table_schema": 154, "match_spec_schema": 136, "action_schema": 296,
             "profile_schema": 6, "cli_schema": 1, "field_width": 487,
             "supports_entry_priority": 154,
             "counter": 51, "meter": 16, "meter_generic": 5, "register": 28, "register_generic": 9,
             "add_member": 15, "modify_member": 15, "members": 42, "groups": 126,
             "indirect": 48, "indirect_get_entry": 6,
             "table_value": 154, "match_spec_value": 136, "action_value": 296,
             "match_specs_are_equal": 136, "action_specs_are_equal": 150, "value_dispatch": 4,
             "plcmt_data_value": 154, "profile_plcmt_data_value": 6, "plcmt_data_eq_to_hw": 154,
             "hash_calc": 120, "pvs": 70, "digest": 9, "snapshot": 4,
             "match_spec_print": 136, "action_print": 150, "address_print": 8,
             "counter_label": 15, "counter_label_entry": 15, "dispatch": 8,
             "plcmt_data_print": 154, "adt_plcmt_data_print": 6,
             "plcmt_data": 154, "plcmt_decode": 154, "profile_plcmt": 24}
    failed = False
    # The whole boundary: the families' rules give 7,683 functions, and the
    # two exported objects stand beside them.
    if sum(known.values()) != 7683 + 2:
        print("families add up to %d names, expected 7,683 functions and 2 objects"
              % sum(known.values()))
        failed = True
    for k, v in known.items():
        if len(fam.get(k, ())) != v:
            print("family %s: catalogue yields %d, expected %d" % (k, len(fam.get(k, ())), v))
            failed = True
    expected = set().union(*fam.values())

    out = subprocess.run(["nm", "-D", "--defined-only", lib], check=True, capture_output=True,
                         text=True).stdout
    defined = set()
    for line in out.splitlines():
        parts = line.split()
        if len(parts) == 3 and parts[1] in "TDRBVW":
            defined.add(parts[2].split("@")[0])
    missing = sorted(expected - defined)
    extra = sorted(defined - expected)
    for m in missing[:20]:
        print("missing:", m)
    for e in extra[:20]:
        print("extra:", e)
    if missing or extra:
        print("%d missing, %d extra" % (len(missing), len(extra)))
        failed = True
    print("%d exported symbols checked" % len(defined))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2]))
