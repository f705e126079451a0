# The temporary file of a save is nobody's database.
put x.mdb
| 501,"CuX",0,1.5,0,0,2,0,0,0,0,0
| trailer
put dbnamep.mdb
| 502,"FeX",0,1.5,0,0,2,0,0,0,0,0
| trailer
put sorptemp.dat
| dbnamep.mdb
> load
> select 0
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
box [Kelmar error] critical OK [the open database is the temporary file dbnamep.mdb itself. Copy it to another name and open that.]
> choose new.mdb
> click cmdNewDb
dialog save [Sorption database files (*.MDB)|*.MDB]
box [Kelmar error] critical OK [the open database is the temporary file dbnamep.mdb itself. Copy it to another name and open that.]
> choose x.mdb
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 0
> choose ./dbnamep.mdb
> click cmdNewDb
dialog save [Sorption database files (*.MDB)|*.MDB]
box [Kelmar error] critical OK [./dbnamep.mdb is the temporary file of every save. Choose another name.]
> state
cboIsoterm hidden [] 7
  [Linear Kd]
  [Freundlich]
  [Extended Freundlich]
  [Langmuir]
  [Temkin]
  [Langmuir-Freundlich]
  [NICA]
changedone [N]
cmdDelete shown [Delete this species]
compdb [comp.mdb]
dbname [x.mdb]
lblNameDb shown [x.mdb]
lbldhr shown [dHr (kJ/mol)]
lstReactions shown [CuX] 1
  [CuX]
txtCharge shown [ 2]
txtID shown [ 501]
txtName shown [CuX]
txtNocomp shown [ 0]
txtdhr shown [  0]
txtlogk shown [  1.5]
gone sorptemp.dat
