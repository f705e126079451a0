# The real file dialogs, and a question that is closed.
put there.NIC
put a.MDB
> load
> dialog ask close Really?
the window shows what stands
[Kelmar] [Really?] question YesNo
answer No
> dialog open a.MDB
the window shows what stands
A (*.MDB) (*.MDB *.mdb) | B (*.ISO) (*.ISO *.iso)
chosen FOLDER/a.MDB
> dialog open Escape
the window shows what stands
A (*.MDB) (*.MDB *.mdb) | B (*.ISO) (*.ISO *.iso)
chosen nothing
> dialog open missing.MDB|Return|Escape
the window shows what stands
A (*.MDB) (*.MDB *.mdb) | B (*.ISO) (*.ISO *.iso)
chosen nothing
> dialog save fresh
the window shows what stands
A (*.MDB) (*.MDB *.mdb) | B (*.ISO) (*.ISO *.iso)
chosen FOLDER/fresh.NIC
> dialog save fresh.mdb
the window shows what stands
A (*.MDB) (*.MDB *.mdb) | B (*.ISO) (*.ISO *.iso)
chosen FOLDER/fresh.mdb
> dialog save there|Yes
the window shows what stands
A (*.MDB) (*.MDB *.mdb) | B (*.ISO) (*.ISO *.iso)
chosen FOLDER/there.NIC
> dialog save there|No|Escape
the window shows what stands
A (*.MDB) (*.MDB *.mdb) | B (*.ISO) (*.ISO *.iso)
chosen nothing
> dialog name there.NIC
the window shows what stands
A (*.MDB) (*.MDB *.mdb) | B (*.ISO) (*.ISO *.iso)
chosen FOLDER/there.NIC
> dialog name plain
the window shows what stands
A (*.MDB) (*.MDB *.mdb) | B (*.ISO) (*.ISO *.iso)
chosen FOLDER/plain
> dialog name äЖ
the window shows what stands
A (*.MDB) (*.MDB *.mdb) | B (*.ISO) (*.ISO *.iso)
chosen FOLDER/äЖ
gone sorptemp.dat
