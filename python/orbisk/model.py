"""What the driver model was given: the calls it logged, with copies of the
records passed (for checking the bytes that reached the driver)."""

import ctypes


class _Call(ctypes.Structure):
    _fields_ = [("function", ctypes.c_char_p), ("status", ctypes.c_uint32), ("num_args", ctypes.c_uint32),
                ("args", ctypes.POINTER(ctypes.c_uint64))]


RECORDS = ("key.value", "key.mask", "act.data")


def calls(driver, function=None):
    """The logged calls, oldest first, as (function, status, {record: bytes})
    with the key's value and mask and the action data copied."""
    at = driver.orbisk_model_call_at
    at.restype, at.argtypes = ctypes.POINTER(_Call), [ctypes.c_size_t]
    get = driver.orbisk_model_call_bytes
    get.restype = ctypes.POINTER(ctypes.c_uint8)
    get.argtypes = [ctypes.POINTER(_Call), ctypes.c_char_p, ctypes.POINTER(ctypes.c_size_t)]
    driver.orbisk_model_call_count.restype = ctypes.c_size_t
    out = []
    for i in range(driver.orbisk_model_call_count()):
        c = at(i)
        name = c.contents.function.decode()
        if function is not None and name != function:
            continue
        recs = {}
        for r in RECORDS:
            size = ctypes.c_size_t()
            p = get(c, r.encode(), ctypes.byref(size))
            if p:
                recs[r] = bytes(p[:size.value])
        out.append((name, c.contents.status, recs))
    return out
