// Schema text of tables and profiles, written from the constant pieces, and
// the dispatch by handle.
#include "schema.h"

#include <cstring>

#include "export.h"
#include "pd_handles.h"
#include "orbisk_switch/pd.h"

namespace orbisk::pd {

namespace {

char *put(char *p, const char *text, std::size_t length) {
  std::memcpy(p, text, length);
  return p + length;
}

template <std::size_t N>
char *put(char *p, const char (&text)[N]) {
  return put(p, text, N - 1);
}

char *put(char *p, const SchemaText &t) { return put(p, kSchemaText + t.offset, t.length); }

// "(" then each action tuple followed by ",", then ")".
char *put_actions(char *p, const SchemaPieces &s) {
  *p++ = '(';
  for (const uint16_t *a = kSchemaActionOrder + s.first_action,
                      *end = a + s.num_actions; a != end; ++a) {
    p = put(p, kSchemaActions[*a]);
    *p++ = ',';
  }
  *p++ = ')';
  return p;
}

int end_text(char *out, char *p) {
  *p = '\0';
  return int(p - out);
}

}  // namespace

int write_table_schema(unsigned table, char *out) {
  const TableDesc &t = kTables[table];
  const SchemaPieces &s = kSchemaTables[table];
  char *p = put(out, "( ('");
  p = put(p, t.name, std::strlen(t.name));
  // Whether entries name a member or a group rather than hold an action.
  p = t.indirect() ? put(p, "','mat',(True,)),") : put(p, "','mat',(False,)),");
  p = s.key.length != 0 ? put(p, s.key) : put(p, "()");
  *p++ = ',';
  if (t.indirect()) {
    p = put(p, kSelectorTail, std::strlen(kSelectorTail));
  } else {
    p = put_actions(p, s);
    *p++ = ')';
  }
  return end_text(out, p);
}

int write_profile_schema(unsigned profile, char *out) {
  return end_text(out, put_actions(out, kSchemaProfiles[profile]));
}

}  // namespace orbisk::pd

using namespace orbisk::pd;

PD_EXPORT int p4_pd_orbisk_switch_cli_schema(pd_tbl_hdl tbl_hdl, char *out) {
  if (const unsigned t = table_slot(tbl_hdl); t != kNoSlot) return write_table_schema(t, out);
  if (const unsigned r = profile_slot(tbl_hdl); r != kNoSlot) return write_profile_schema(r, out);
  // Any other handle: an empty tuple, told from a text by its length.
  return end_text(out, put(out, "()"));
}
