"""An interactive Python shell with a switch loaded as `sw`, completing
tables, profiles and resources by attribute, and inside a table's call its
actions, key fields and parameters."""

import argparse
import code
import re
import rlcompleter

from .profiles import Profile
from .switch import Switch, diff
from .tables import Table

BANNER = """orbisk shell: device %d, %d tables, %d profiles.
  sw.tables.<TAB>   t = sw.tables.l2Lookup; t.fields, t.actions
  t.add(match={...}, action="...", **params)   t.get(h)   list(t.entries())
  sw.dump()   sw.load(text)   diff(a, b)   sw.verify()"""

CALL = re.compile(r"([A-Za-z_][\w.]*)\.\w+\(")


class Completer(rlcompleter.Completer):
    def __init__(self, namespace, sw, line_buffer):
        super().__init__(namespace)
        self.sw, self.line_buffer = sw, line_buffer

    def words(self, line):
        """Names the call being written may take: the table's (or profile's)
        actions, key fields and parameters."""
        calls = CALL.findall(line)
        if not calls:
            return []
        # The object whose method is being called: names and attributes
        # only, nothing is called to find it.
        parts = calls[-1].split(".")
        obj = self.namespace.get(parts[0])
        try:
            for p in parts[1:]:
                obj = getattr(obj, p)
        except Exception:
            return []
        if isinstance(obj, Table):
            names, acts = obj.actions + obj.fields, obj.shape.actions.values()
        elif isinstance(obj, Profile):
            names, acts = obj.actions, obj.shape.actions.values()
        else:
            return []
        return sorted(set(names) | {q.name for a in acts for q in a.params})

    def global_matches(self, text):
        words = [w for w in self.words(self.line_buffer()) if w.startswith(text)]
        return words + super().global_matches(text)


def main(argv=None):
    ap = argparse.ArgumentParser(prog="python3 -m orbisk", description=__doc__)
    ap.add_argument("--device", type=int, default=0)
    ap.add_argument("--lib", help="the library (default: the build tree's, or $ORBISK_PD_LIB)")
    ap.add_argument("--driver", help="the driver (default: the driver model beside the library)")
    ap.add_argument("-c", dest="command", help="run this and exit")
    args = ap.parse_args(argv)
    sw = Switch(args.device, lib=args.lib, driver=args.driver)
    ns = {"sw": sw, "diff": diff, "Switch": Switch}
    if args.command:
        exec(compile(args.command, "<command>", "single"), ns)
        return 0
    try:
        import readline
        readline.set_completer(Completer(ns, sw, readline.get_line_buffer).complete)
        readline.set_completer_delims(" \t\n\"'`~!@#$%^&*()-=+[{]}\\|;:,<>/?")
        readline.parse_and_bind("tab: complete")
    except ImportError:
        pass
    code.InteractiveConsole(ns).interact(BANNER % (sw.device, len(sw.tables), len(sw.profiles)), "")
    return 0
