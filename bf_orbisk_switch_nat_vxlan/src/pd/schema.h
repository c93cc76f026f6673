// Schema text: the shape of every table, action and action profile as a
// literal of the Python language, which an agent evaluates to learn at run
// time what a table holds.
//
// The texts are constants of the program (pd_schema_text.cpp, generated):
// one blob holds every key tuple and every action tuple once. A table's text
// is its name, its key tuple and its actions' tuples, written one after the
// other into the caller's buffer; nothing is allocated or copied twice.
#pragma once

#include <cstdint>

#include "descriptors.h"

#pragma GCC visibility push(hidden)

namespace orbisk::pd {

// One text of the blob: where it starts and its length without the NUL.
struct SchemaText {
  uint32_t offset;
  uint32_t length;
};

// What a table's or a profile's text is made of besides its descriptor: the
// key tuple (length 0 for none) and a run of kSchemaActionOrder naming its
// actions in ascending byte order of name (none for a selector table, whose
// text ends in kSelectorTail whatever its profile holds).
struct SchemaPieces {
  SchemaText key;
  uint16_t first_action;
  uint16_t num_actions;
};

extern const char kSchemaText[];
extern const char kSelectorTail[];
extern const SchemaText kSchemaActions[];  // by action enum
extern const uint16_t kSchemaActionOrder[];
extern const SchemaPieces kSchemaTables[];    // as kTables
extern const SchemaPieces kSchemaProfiles[];  // as kProfiles

// The text of kTables[table] or kProfiles[profile] and a NUL, written to out;
// the length, NUL not counted.
int write_table_schema(unsigned table, char *out);
int write_profile_schema(unsigned profile, char *out);

}  // namespace orbisk::pd

#pragma GCC visibility pop
