"""Table properties, handles and update callbacks: four small functions of
every table. Reading a property and handing out the handle have rules of
their own, written once in the engine (src/pd/properties.cpp); the others
hand their arguments to the driver with the table's handle."""

from .base import DEV, SESS, Arg, Family, always
from .idle import COOKIE, driver, engine

PROPERTY = Arg("uint32_t", "property", "property")
VALUE = Arg("uint32_t", "value", "value")
SECOND_VALUE = Arg("uint32_t", "second_value", "second value")
OUT_VALUE = Arg("uint32_t *", "value", "out value")
OUT_SECOND_VALUE = Arg("uint32_t *", "second_value", "out second value")
OUT_TBL_HDL = Arg("pd_tbl_hdl *", "tbl_hdl", "out table handle or NULL")
UPDATE_CB = Arg("pd_mat_update_cb", "callback", "update callback")

# One-line functions: one generated source for all areas.
BY_AREA = False

# What its generated sources include.
INCLUDES = ["export.h", "properties.h", "orbisk_switch/pd_driver.h"]

FAMILIES = [
    Family("set_property", "{p}{t}_set_property", [SESS, DEV, PROPERTY, VALUE, SECOND_VALUE],
           "sets a driver property of the table.", driver("pipe_mgr_tbl_set_property"),
           when=always, place=(85, 0)),
    Family("get_property", "{p}{t}_get_property",
           [SESS, DEV, PROPERTY, OUT_VALUE, OUT_SECOND_VALUE],
           "reads one back; on failure both out places are 0xFFFFFFFF.", engine("get_property"),
           when=always, place=(85, 1)),
    Family("get_mat_table_handle", "{p}{t}_get_mat_table_handle", [OUT_TBL_HDL],
           "stores the table's handle unless the pointer is NULL; returns 0.",
           engine("get_mat_table_handle"), when=always,
           place=(85, 2)),
    Family("register_mat_update_cb", "{p}{t}_register_mat_update_cb",
           [SESS, DEV, UPDATE_CB, COOKIE],
           "the callback told of every entry added, changed or deleted.",
           driver("pipe_register_mat_update_cb"), when=always, place=(85, 3)),
]
