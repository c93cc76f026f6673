// The program's match tables as the model knows them, generated from the
// catalogue into the build tree.
#include "orbisk_model_tables.inc"
