"""Finding and loading the library and its driver, and the C records every
table shares (targets, key records, meter and counter values).

Nothing here knows a table: the library's exported names come from its own
dynamic symbol table, its shapes from its schema text (see schema.py)."""

import ctypes
import os
import re
import struct

PREFIX = "p4_pd_orbisk_switch_"
LIB_NAME = "libob_bf_pd_nat_vxlan.so"
MODEL_NAME = "liborbisk_driver_model.so"


class DevTarget(ctypes.Structure):
    _fields_ = [("device_id", ctypes.c_uint32), ("dev_pipe_id", ctypes.c_uint16)]


PIPE_ALL = 0xFFFF


class MatchRecord(ctypes.Structure):
    _fields_ = [("value_bytes", ctypes.c_void_p), ("mask_bytes", ctypes.c_void_p),
                ("partition_index", ctypes.c_uint32), ("priority", ctypes.c_uint32),
                ("num_valid_bits", ctypes.c_uint16), ("num_bytes", ctypes.c_uint16),
                ("reserved", ctypes.c_uint32)]


class MeterSpec(ctypes.Structure):
    _fields_ = [("cir", ctypes.c_uint32), ("cburst", ctypes.c_uint32), ("pir", ctypes.c_uint32),
                ("pburst", ctypes.c_uint32), ("meter_type", ctypes.c_uint32)]


class CounterValue(ctypes.Structure):
    _fields_ = [("packets", ctypes.c_uint64), ("bytes", ctypes.c_uint64)]


# The C types the library's prototypes use, as ctypes; pointers are added by
# the prototype reader.
C_TYPES = {
    "pd_status": ctypes.c_uint32, "pd_sess_hdl": ctypes.c_uint32, "pd_tbl_hdl": ctypes.c_uint32,
    "pd_entry_hdl": ctypes.c_uint32, "pd_mbr_hdl": ctypes.c_uint32, "pd_grp_hdl": ctypes.c_uint32,
    "pd_act_fn_hdl": ctypes.c_uint32, "uint32_t": ctypes.c_uint32, "int32_t": ctypes.c_int32,
    "uint16_t": ctypes.c_uint16, "uint8_t": ctypes.c_uint8, "uint64_t": ctypes.c_uint64,
    "int": ctypes.c_int, "bool": ctypes.c_bool, "char": ctypes.c_char,
    "pd_dev_target": DevTarget, "pd_meter_spec": MeterSpec, "pd_counter_value": CounterValue,
}


def exported_functions(path):
    """Names of the functions a shared object defines, from its ELF dynamic
    symbol table (64-bit little-endian objects, the only kind we build)."""
    with open(path, "rb") as f:
        data = f.read()
    if data[:4] != b"\x7fELF" or data[4] != 2 or data[5] != 1:
        raise OSError("%s is not a 64-bit little-endian ELF object" % path)
    shoff, = struct.unpack_from("<Q", data, 0x28)
    shentsize, shnum = struct.unpack_from("<HH", data, 0x3A)
    sections = [struct.unpack_from("<IIQQQQIIQQ", data, shoff + i * shentsize) for i in range(shnum)]
    names = set()
    for sh in sections:
        if sh[1] != 11:  # SHT_DYNSYM
            continue
        strtab = sections[sh[6]]
        str_off = strtab[4]
        for off in range(sh[4], sh[4] + sh[5], sh[9]):
            st_name, st_info, _, st_shndx = struct.unpack_from("<IBBH", data, off)
            if st_shndx == 0 or (st_info & 0xF) != 2:  # defined functions only
                continue
            end = data.index(b"\0", str_off + st_name)
            names.add(data[str_off + st_name:end].decode())
    return names


def _candidates_dirs():
    """Build trees near the package: the source tree's build* directories."""
    here = os.path.dirname(os.path.abspath(__file__))
    root = os.path.dirname(os.path.dirname(here))
    if not os.path.isdir(root):
        return []
    return [os.path.join(root, d) for d in sorted(os.listdir(root)) if d.startswith("build")]


def _usable_tree(build):
    """A build tree with the library and the model, and no sanitizers unless
    their run-time is preloaded (an interpreter is not built with them)."""
    if not os.path.exists(os.path.join(build, "driver_model", MODEL_NAME)):
        return False
    cache = os.path.join(build, "CMakeCache.txt")
    if os.path.exists(cache) and not os.environ.get("LD_PRELOAD"):
        with open(cache) as f:
            if re.search(r"^ORBISK_SANITIZE:BOOL=ON$", f.read(), re.M):
                return False
    return True


def find_library(explicit=None):
    """The library: the argument, $ORBISK_PD_LIB, $ORBISK_BUILD_DIR's, or the
    newest one in a build* directory next to the package's source tree that
    also holds the model."""
    if explicit:
        return explicit
    if os.environ.get("ORBISK_PD_LIB"):
        return os.environ["ORBISK_PD_LIB"]
    dirs = ([os.environ["ORBISK_BUILD_DIR"]] if os.environ.get("ORBISK_BUILD_DIR") else
            [d for d in _candidates_dirs() if _usable_tree(d)])
    found = [os.path.join(d, "bf_orbisk_switch_nat_vxlan", LIB_NAME) for d in dirs]
    found = [p for p in found if os.path.exists(p)]
    if not found:
        raise OSError("no %s: pass lib=, or set ORBISK_PD_LIB or ORBISK_BUILD_DIR" % LIB_NAME)
    return max(found, key=os.path.getmtime)


def find_model(lib_path):
    """The driver model beside a library of the build tree (or installed
    beside it), or $ORBISK_DRIVER."""
    if os.environ.get("ORBISK_DRIVER"):
        return os.environ["ORBISK_DRIVER"]
    libdir = os.path.dirname(os.path.abspath(lib_path))
    for p in (os.path.join(os.path.dirname(libdir), "driver_model", MODEL_NAME),
              os.path.join(libdir, MODEL_NAME)):
        if os.path.exists(p):
            return p
    raise OSError("no %s beside %s: pass driver=, or set ORBISK_DRIVER" % (MODEL_NAME, lib_path))


def find_headers(lib_path):
    """Directories holding orbisk_switch/pd.h and orbisk_driver_model.h for a
    library: $ORBISK_INCLUDE, the build tree's generated and source headers,
    or an installed prefix's include directory."""
    libdir = os.path.dirname(os.path.abspath(lib_path))
    build = os.path.dirname(libdir)
    dirs = []
    if os.environ.get("ORBISK_INCLUDE"):
        dirs += os.environ["ORBISK_INCLUDE"].split(os.pathsep)
    dirs.append(os.path.join(build, "generated", "include"))
    cache = os.path.join(build, "CMakeCache.txt")
    if os.path.exists(cache):
        with open(cache) as f:
            m = re.search(r"^CMAKE_HOME_DIRECTORY:INTERNAL=(.*)$", f.read(), re.M)
        if m:
            dirs += [os.path.join(m.group(1), "bf_orbisk_switch_nat_vxlan", "include"),
                     os.path.join(m.group(1), "driver_model", "include")]
    dirs.append(os.path.join(os.path.dirname(libdir), "include"))
    here = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
    dirs += [os.path.join(here, "bf_orbisk_switch_nat_vxlan", "include"),
             os.path.join(here, "driver_model", "include")]
    return [d for d in dirs if os.path.isdir(d)]


def _header(dirs, rel):
    for d in dirs:
        p = os.path.join(d, rel)
        if os.path.exists(p):
            with open(p) as f:
                return f.read()
    return None


class Prototypes:
    """The argument lists the library's header declares. The schema text
    tells a table's key, priority, actions and parameters; what it does not
    tell (which calls of a table carry a meter spec or an idle time, and the
    arguments of the counter, meter and register functions) is read from
    the declarations the library is built from."""

    def __init__(self, text):
        self.args = {}
        for decl in (text or "").split(";"):
            start = decl.find(PREFIX)
            if start < 0 or "(" not in decl[start:] or "typedef" in decl or "#" in decl[start:]:
                continue
            name, _, rest = decl[start:].partition("(")
            if not name.isidentifier():
                continue
            out = []
            for p in rest.rstrip().rstrip(")").replace("\n", " ").split(","):
                p = p.strip()
                if p in ("void", ""):
                    continue
                cut = len(p.rstrip("_abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"))
                out.append((p[:cut].replace("const", "").strip(), p[cut:]))
            self.args[name[len(PREFIX):]] = out

    def __bool__(self):
        return bool(self.args)

    def get(self, name):
        return self.args.get(name)


def statuses(dirs):
    """Status names by value, from the #defines of the library's and the
    model's headers."""
    names = {0: "BF_SUCCESS"}
    for rel in ("orbisk_switch/pd_types.h", "orbisk_driver_model.h"):
        for m in re.finditer(r"#define (\w+) \(\(pd_status\)(0x[0-9A-Fa-f]+|\d+)\)", _header(dirs, rel) or ""):
            names.setdefault(int(m.group(2), 0), m.group(1))
    return names


class Native:
    """One library and one driver in the process: loaded once, shared by every
    Switch (each Switch is one device id)."""

    _loaded = {}

    @classmethod
    def load(cls, lib=None, driver=None):
        lib_path = os.path.realpath(find_library(lib))
        driver_path = os.path.realpath(driver) if driver else os.path.realpath(find_model(lib_path))
        key = (lib_path, driver_path)
        if key not in cls._loaded:
            if cls._loaded:
                raise OSError("this process already runs %s on %s" % next(iter(cls._loaded)))
            cls._loaded[key] = cls(lib_path, driver_path)
        return cls._loaded[key]

    def __init__(self, lib_path, driver_path):
        self.lib_path, self.driver_path = lib_path, driver_path
        # The library's driver symbols are bound at load time from whatever
        # is global in the process: the driver first.
        self.driver = ctypes.CDLL(driver_path, mode=ctypes.RTLD_GLOBAL)
        self.lib = ctypes.CDLL(lib_path)
        self.names = {n[len(PREFIX):] for n in exported_functions(lib_path) if n.startswith(PREFIX)}
        self._dirs = find_headers(lib_path)
        self._protos = self._status_names = None
        self.is_model = hasattr(self.driver, "orbisk_model_reset")
        self.lib[PREFIX + "init"]()
        self._fns = {}

    @property
    def protos(self):
        """The library's declarations, read on first use."""
        if self._protos is None:
            self._protos = Prototypes(_header(self._dirs, "orbisk_switch/pd.h"))
        return self._protos

    @property
    def status_names(self):
        if self._status_names is None:
            self._status_names = statuses(self._dirs)
        return self._status_names

    def fn(self, name, argtypes, restype=ctypes.c_uint32, prefix=PREFIX):
        """The exported function p4_pd_orbisk_switch_<name>, typed."""
        f = self._fns.get(prefix + name)
        if f is None:
            f = self.lib[prefix + name]
            f.argtypes, f.restype = argtypes, restype
            self._fns[prefix + name] = f
        return f

    def has(self, name):
        return name in self.names

    def proto_fn(self, name):
        """A function typed by its declaration, with its argument names."""
        args = self.protos.get(name)
        if args is None:
            raise OSError("no declaration of %s%s found (set ORBISK_INCLUDE to the directory of "
                          "orbisk_switch/pd.h)" % (PREFIX, name))
        types = []
        for ctype, _ in args:
            base = ctype.rstrip("* ").strip()
            t = C_TYPES.get(base, ctypes.c_uint8)
            types.append(ctypes.POINTER(t) if "*" in ctype else t)
        return self.fn(name, types), args
