"""The walk: first, next and default entry handles of any table, and first
and next members of any action profile, from the handle alone, so that a
tool holding only handles can walk the whole program. Each forwards to the
driver call of the per-table (or per-profile) function, which is the same
call with the handle as a constant; a handle that names nothing gets the
family's own answer. Written by hand (src/pd_orbisk/walk.cpp) over the
inline handle lookup of dispatch.h."""

from .base import SESS, TGT, Arg, Family

TBL_HDL = Arg("pd_tbl_hdl", "tbl_hdl", "table handle")
ADT_HDL = Arg("pd_tbl_hdl", "tbl_hdl", "action data table handle")
COUNT = Arg("uint32_t", "n", "n")


def walk(id, args, doc):
    return Family(id, "{p}" + id, args, doc, each="program")


FAMILIES = [
    walk("entry_hdl_first", [SESS, TGT, TBL_HDL, Arg("pd_entry_hdl *", "entry_hdl", "out entry handle")],
         "The table's first entry handle; for a handle of no table 0xffffffff and status 0."),
    walk("entry_hdl_next", [SESS, TGT, TBL_HDL, Arg("pd_entry_hdl", "entry_hdl", "entry handle"), COUNT,
                            Arg("pd_entry_hdl *", "next_entry_hdls", "out handles")],
         "Up to n entry handles after this one; for a handle of no table 0xffffffff and status 0."),
    walk("entry_hdl_default", [SESS, TGT, TBL_HDL, Arg("pd_entry_hdl *", "entry_hdl", "out entry handle")],
         "The table's default entry handle; for a handle of no table 0xffffffff and status 0."),
    walk("member_hdl_first", [SESS, TGT, ADT_HDL, Arg("pd_mbr_hdl *", "mbr_hdl", "out member handle")],
         "The profile's first member; for a handle of no profile 0xffffffff and status 0xffffffff."),
    walk("member_hdl_next", [SESS, TGT, ADT_HDL, Arg("pd_mbr_hdl", "mbr_hdl", "member handle"), COUNT,
                             Arg("pd_mbr_hdl *", "next_mbr_hdls", "out handles")],
         "Up to n members after this one; for a handle of no profile 0xffffffff and status 0xffffffff."),
]


def header_lines(prog):
    """The handles a walk tries: each pipeline's match tables as one run
    (a handle inside a run that names no table takes each dispatcher's miss
    answer), and the action data tables of the profiles."""
    out = ["/* The handles the dispatchers take, for a tool that walks the program from",
           " * handles alone: the match tables of each pipeline as a run from FIRST to",
           " * LAST (a handle inside a run that names no table gets each dispatcher's",
           " * answer for a miss), and the action data tables of the profiles. */"]
    for p in sorted({t.pipeline for t in prog.tables}):
        hs = [t.handle for t in prog.tables if t.pipeline == p]
        out += ["#define P4_PD_ORBISK_SWITCH_TABLES_%s_FIRST 0x%08xu" % (p, min(hs)),
                "#define P4_PD_ORBISK_SWITCH_TABLES_%s_LAST 0x%08xu" % (p, max(hs))]
    out += ["#define P4_PD_ORBISK_SWITCH_NUM_PROFILES %d" % len(prog.profiles),
            "#define P4_PD_ORBISK_SWITCH_PROFILE_HANDLES {%s}"
            % ", ".join("0x%08xu" % r.adt for r in prog.profiles), ""]
    return out
