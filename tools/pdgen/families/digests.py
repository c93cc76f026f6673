"""Learning digests: subscribing to each digest, acknowledging its messages,
the device's learning timeout, and finding an entry's size and a field's
place by name. The callback and messages are the driver's, handed on
unwrapped; the name lookups are loops over the digest descriptors in the
engine (src/pd/digests.cpp)."""

from .base import SESS, Arg, ItemFamily
from .packing import hx

# A digest's device id is one byte: only its low 8 bits reach the driver.
DEV8 = Arg("uint8_t", "dev_id", "device id byte")
CALLBACK = Arg("pd_lrn_digest_cb", "callback", "callback")
COOKIE = Arg("void *", "cookie", "cookie")
MSG = Arg("pd_lrn_digest_msg *", "msg", "message")
TIMEOUT = Arg("uint32_t", "timeout", "timeout")
DIGEST_NAME = Arg("const char *", "digest_name", "digest name")
ENTRY = Arg("void *", "entry", "entry")
FIELD_NAME = Arg("const char *", "field_name", "field name")
OUT_SIZE = Arg("uint32_t *", "size", "out size")


def digests(prog):
    return prog.services.digests


def digest_family(op, args, doc, body):
    return ItemFamily("digest_" + op, "{p}{i}_" + op, args, doc, body, items=digests,
                         label="<d>", section="learning digests")


def program(op, args, doc, body, result="pd_status"):
    return ItemFamily(op, "{p}" + op, args, doc, body, result=result, section="learning digests")


def forward(call, head, tail=""):
    def body(f):
        return ["  return %s(%s);" % (call, head(f) + tail)]
    return body


INCLUDES = ["export.h", "digests.h", "orbisk_switch/pd_driver.h"]

FAMILIES = [
    digest_family("register", [SESS, DEV8, CALLBACK, COOKIE],
                  "the callback the driver calls with each message of the digest.",
                  forward("pipe_mgr_lrn_digest_notification_register",
                          lambda f: "sess_hdl, dev_id, %s, callback, cookie" % hx(f.item.handle))),
    digest_family("deregister", [SESS, DEV8], "ends the subscription.",
                  forward("pipe_mgr_lrn_digest_notification_deregister",
                          lambda f: "sess_hdl, dev_id, %s" % hx(f.item.handle))),
    digest_family("notify_ack", [SESS, MSG], "hands a delivered message back to the driver.",
                  forward("pipe_mgr_flow_lrn_notify_ack",
                          lambda f: "sess_hdl, %s, msg" % hx(f.item.handle))),
    program("set_learning_timeout", [SESS, DEV8, TIMEOUT],
            "the device's learning timeout, for every digest.",
            forward("pipe_mgr_flow_lrn_set_timeout", lambda f: "sess_hdl, dev_id, timeout")),
    program("get_digest_entry_size", [DIGEST_NAME],
            "bytes of one entry of the named digest; 0 for an unknown name.",
            lambda f: ["  return digest_entry_size(digest_name);"], result="uint32_t"),
    program("get_digest_entry_field", [ENTRY, DIGEST_NAME, FIELD_NAME, OUT_SIZE],
            "the named field of an entry and its size in bytes; an unknown digest or field "
            "name ends the process.",
            lambda f: ["  return digest_entry_field(entry, digest_name, field_name, size);"],
            result="void *"),
]
