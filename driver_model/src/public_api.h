// The driver functions and the model's controls are the model's only exported
// symbols; everything else stays hidden. Every source reaches the public
// declarations through here, so they are first seen with default visibility.
#pragma once

#pragma GCC visibility push(default)
#include "orbisk_driver_model.h"
#pragma GCC visibility pop
