// Counter labels: a counting table's key record as a short run of words,
// such as "Ingress Port 0x05 !illegalDmac checksumErr ". Wildcarded fields
// drop out, flags become words and known numbers names. The words are facts
// of the program, not of its key layout, so they are data: the catalogue's
// `labels` of each counting table, generated into kLabelTables, and read by
// one loop here.
#pragma once

#include <cstdint>

#include "descriptors.h"
#include "orbisk_switch/pd_types.h"

#pragma GCC visibility push(hidden)

namespace orbisk::pd {

enum class LabelKind : uint8_t {
  Exact,    // always written: text and the value under the schema's mask
  Flag,     // bit 0 of mask and value: the word, "!" and the word, or nothing
  Number,   // nothing for mask 0; the short form for the full mask; else mask and value
  Named,    // a Number whose selected value may have a name of its own
  Address,  // by the _print_ formatter of the field's format
};

// Item options.
inline constexpr uint8_t kLabelDecimal = 1;  // Exact: in decimal, blank-padded
inline constexpr uint8_t kLabelValueSelected =
    2;  // Named: write the selected value, not the field's
inline constexpr uint8_t kLabelUnselectedNumber =
    4;  // Named: a mask outside `select` still gives a number

// Room for the key record of any counting table, on the stack of a read.
inline constexpr unsigned kLabelSpecRoom = 128;

struct LabelName {
  uint32_t value;
  const char *text;  // with its closing blank(s)
};

struct LabelItem {
  LabelKind kind;
  uint8_t field;   // index in the table's fields (of a MAC address: the OUI half)
  uint8_t digits;  // of a number
  uint8_t options;
  uint32_t select;   // Named: the bits a name is looked up by
  uint32_t full;     // Number, Named: the mask of the short form
  const char *text;  // the label, or a flag's whole word with its closing blank(s)
  uint16_t num_names;
  const LabelName *names;
};

struct LabelTable {
  const TableDesc *table;
  uint16_t num_items;
  const LabelItem *items;
};

extern const LabelTable kLabelTables[];
extern const std::size_t kNumLabelTables;
// The index in kLabelTables of each table of kTables; kNoLabels for none.
inline constexpr uint8_t kNoLabels = 0xFF;
extern const uint8_t kLabelsOfTable[];

// <table>_match_spec_stringify_for_counter: the label of a key record in out,
// NUL-terminated; its length.
int stringify_for_counter(const LabelTable &l, const void *match_spec, char *out);

// <table>_stringify_counter_match_spec: the label of an entry read from
// hardware; 0, out untouched, when the read fails. `function` names the
// exported function for the read's assertions.
int stringify_counter_entry(const LabelTable &l, const char *function, pd_sess_hdl sess,
                            uint8_t dev_id, pd_entry_hdl entry_hdl, char *out);

}  // namespace orbisk::pd

#pragma GCC visibility pop
