// What the library exports: only the functions and objects so marked, named
// in the generated export list; everything else is hidden.
#pragma once

#define PD_EXPORT extern "C" __attribute__((visibility("default")))
// For an exported object defined here: C linkage without an extern initializer.
#define PD_EXPORT_DATA __attribute__((visibility("default")))
