# The file dialogs, for each kind of database.
> load
> click cmdCompdb
dialog save [Kelmar database files (*.MDB)|*.MDB]
> click cmdNewDb
dialog save [Sorption database files (*.MDB)|*.MDB]
> choose counter.CDB
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> click cmdNewDb
dialog save [Counterion selectivity files (*.CDB)|*.CDB]
> choose copper.BLI
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> click cmdNewDb
dialog save [BLM parameter files (*.BLI)|*.BLI]
> choose langmuir.ISO
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> click cmdNewDb
dialog save [Isotherm database files (*.ISO)|*.ISO]
> choose nicadon.NIC
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> click cmdNewDb
dialog save [Sorption database files (*.MDB)|*.MDB]
> select 0
> click cmdNewDb
dialog save [NICA-Donnan database files (*.NIC)|*.NIC]
> click mnuFileExit
ended
gone sorptemp.dat
