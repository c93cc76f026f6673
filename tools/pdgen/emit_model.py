"""Emits the driver model's view of the program: tables, key sizes and the
actions each table may hold."""

KINDS = {"none": "None", "exact": "Exact", "ternary": "Ternary", "prefix": "Prefix",
         "partitioned_prefix": "PartitionedPrefix"}


def emit(prog):
    out = ["// Generated from the catalogue. Do not edit.",
           '#include "model_catalogue.h"', "", "namespace orbisk_model {", "namespace {"]
    for t in prog.tables:
        acts = t.profile.actions if t.indirect else t.actions
        out.append("const ActionRow k_%s[] = {" % t.name)
        for a in acts:
            out.append('    {"%s", 0x%08xu, %d, %d, %s, %s},' % (
                a.name, a.handle, a.action.data_bytes, a.action.data_bits,
                "true" if a.entry else "false", "true" if a.default else "false"))
        out.append("};")
    out += ["}  // namespace", "", "const TableRow kTables[] = {"]
    for t in prog.tables:
        acts = t.profile.actions if t.indirect else t.actions
        dflt = next((i for i, a in enumerate(acts) if a.default), 0)
        res = prog.resources[t.resource].handle if t.resource else 0
        out.append('    {"%s", 0x%08xu, MatchKind::%s, %d, %d, %s, k_%s, %d, %d, 0x%08xu},' % (
            t.name, t.handle, KINDS[t.match], t.key_bytes, t.key_bits,
            "true" if t.indirect else "false", t.name, len(acts), dflt, res))
    out += ["};", "const std::size_t kTableCount = %d;" % len(prog.tables), "", "}  // namespace orbisk_model", ""]
    return "\n".join(out)
