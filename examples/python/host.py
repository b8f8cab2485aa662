"""A host in Python: the VAT code panel, typed into and read back. host.py LIBRARY"""
import ctypes as c
import sys

lib = c.CDLL(sys.argv[1])
lib.qvn_last_message.restype = c.c_char_p
Changed = c.CFUNCTYPE(c.c_int32, c.c_void_p, c.c_void_p, c.c_char_p)
TEXT = 10

class Value(c.Structure):  # of the union only the texts, behind which is room for the others
    _fields_ = [("kind", c.c_int32), ("owned", c.c_int32), ("text", c.c_char_p), ("room", c.c_char * 16)]

def call(function, *arguments):
    if function(*arguments):
        sys.exit(lib.qvn_last_message().decode())

screen, panels, panel, heard = (c.c_void_p() for _ in range(4))
call(lib.qvn_screen_create, c.byref(screen))
call(lib.DllGetClassObject, b"ctlIVA", b"qvn.class.1", c.byref(panels))
call(lib.qvn_create, panels, screen, b"iva", c.byref(panel))
changes = []
listener = Changed(lambda data, panel, name: changes.append(name.decode()) or 0)
call(lib.qvn_on_changed, panel, listener, None, c.byref(heard))
call(lib.qvn_call, panel, b"Attiva", None, c.c_size_t(0), None)
call(lib.qvn_operator_type, screen, b"22{Enter}ordinaria{Enter}250{Enter}40")
for name in "Codice", "DESCRIZIONE", "IVA", "Deb_Dec":
    call(lib.qvn_get, panel, name.encode(), c.byref(value := Value()))
    call(lib.qvn_value_convert, c.byref(value), TEXT, c.byref(value))
    print(name, "=", value.text.decode())
    lib.qvn_value_clear(c.byref(value))
print(len(changes), "changes, the last of", changes[-1])
for thing in heard, panel, panels, screen:
    lib.qvn_release(thing)
print("may be unloaded:", lib.DllCanUnloadNow() == 0)
