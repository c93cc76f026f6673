// The engine under the generated entry points, by concern: byte packing,
// resource slots, assertions and reads. The generated code names its
// constants and calls these; everything that is the same for every table is
// written once.
#pragma once

#include "assertions.h"
#include "bytes.h"
#include "export.h"
#include "reads.h"
#include "resources.h"
#include "orbisk_switch/pd.h"
#include "orbisk_switch/pd_driver.h"
