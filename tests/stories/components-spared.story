# The component database is never written, by whatever name.
put comp.mdb
| 231,"Cu+2",2,0,0,""
put x.mdb
| 501,"CuX",0,1.5,0,0,2,0,0,0,0,1
| 1,231
| trailer
put sorptemp.dat
| x.mdb
hardlink other.mdb comp.mdb
link link.mdb comp.mdb
link aside.mdb x.mdb
> load
> select 0
> type txtlogk 7
> choose comp.mdb
> click cmdNewDb
dialog save [Sorption database files (*.MDB)|*.MDB]
box [Kelmar error] critical OK [comp.mdb is the component database, which is never changed. Choose another file for one of the two.]
> choose other.mdb
> click cmdNewDb
dialog save [Sorption database files (*.MDB)|*.MDB]
box [Kelmar error] critical OK [other.mdb is the component database, which is never changed. Choose another file for one of the two.]
> choose link.mdb
> click cmdNewDb
dialog save [Sorption database files (*.MDB)|*.MDB]
box [Kelmar error] critical OK [link.mdb is the component database, which is never changed. Choose another file for one of the two.]
> state
cboIsoterm hidden [] 7
  [Linear Kd]
  [Freundlich]
  [Extended Freundlich]
  [Langmuir]
  [Temkin]
  [Langmuir-Freundlich]
  [NICA]
cmdDelete shown [Delete this species]
compdb [comp.mdb]
dbname [x.mdb]
lblNameDb shown [x.mdb]
lblStoich(1) shown [Stoichiometry of 1st component]
lbldhr shown [dHr (kJ/mol)]
lstReactions shown [CuX] 1
  [CuX]
txtCharge shown [ 2]
txtComp(1) shown [Cu+2]
txtID shown [ 501]
txtName shown [CuX]
txtNocomp shown [ 1]
txtStoich(1) shown [ 1]
txtdhr shown [  0]
txtlogk shown [7]
> choose missing.mdb
> click cmdCompdb
dialog save [Kelmar database files (*.MDB)|*.MDB]
> choose ./missing.mdb
> click cmdNewDb
dialog save [Sorption database files (*.MDB)|*.MDB]
box [Kelmar error] critical OK [./missing.mdb is the component database, which is never changed. Choose another file for one of the two.]
> state
compdb [missing.mdb]
> choose aside.mdb
> click cmdCompdb
dialog save [Kelmar database files (*.MDB)|*.MDB]
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
box [Kelmar error] critical OK [x.mdb is the component database, which is never changed. Choose another file for one of the two.]
> answer Yes
> click cmdDelete
box [Deletion of species - Kelmar] question YesNo [Are you really sure you would like to delete this species from the database? Once deleted it is gone!]
box [Kelmar error] critical OK [x.mdb is the component database, which is never changed. Choose another file for one of the two.]
> state
changedone [N]
compdb [aside.mdb]
gone sorptemp.dat
