# The real message boxes and file dialogs. A question is answered Yes by Yes alone; a text is shown as it stands.
put there.NIC
put a.MDB
> load
> dialog tell Return <b>x</b> ä
the window shows what stands
[Kelmar] [<b>x</b> �] plain critical buttons 1024
answer OK
focus nowhere
> dialog ask Yes Really?
the window shows what stands
[Kelmar] [Really?] plain question buttons 81920
answer Yes
> dialog ask No Really?
the window shows what stands
[Kelmar] [Really?] plain question buttons 81920
answer No
> dialog ask Escape Really?
the window shows what stands
[Kelmar] [Really?] plain question buttons 81920
answer No
> dialog ask Return Really?
the window shows what stands
[Kelmar] [Really?] plain question buttons 81920
answer No
> dialog ask close Really?
the window shows what stands
[Kelmar] [Really?] plain question buttons 81920
answer No
> dialog tell close WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW, record 4000 (WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW): the number of components is "WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW", not a number.
the window shows what stands
[Kelmar] [WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW, record 4000 (WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW): the number of components is "WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW", not a number.] plain critical buttons 1024
answer OK
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
