# What cannot be shown, saved or deleted, and what is said of it.
put x.mdb
| 501,"CuX",0,1.5,0,0,2,0,0,0,0,2
| 1,231,-1,9999
| 502,FeX,0,abc,0,0,0,0,0,0,0,0
| 503,"cut",0,1
put huge.mdb
| 1E12,"huge",0,0,0,0
put odd.mdb
| 7,"open
put sorptemp.dat
| x.mdb
> load
> select 0
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
lblStoich(2) shown [Stoichiometry of 2nd component]
lbldhr shown [dHr (kJ/mol)]
lstReactions shown [CuX] 2
  [CuX]
  [FeX]
txtCharge shown [ 2]
txtComp(1) shown [Cu+2]
txtComp(2) shown [#9999]
txtID shown [ 501]
txtName shown [CuX]
txtNocomp shown [ 2]
txtStoich(1) shown [ 1]
txtStoich(2) shown [-1]
txtdhr shown [  0]
txtlogk shown [  1.5]
> choose nowhere.mdb
> click cmdCompdb
dialog save [Kelmar database files (*.MDB)|*.MDB]
> select 0
box [Kelmar error] critical OK [The components are shown by number: cannot open nowhere.mdb: No such file or directory. Choose another component database, or mend this one.]
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
box [Kelmar error] critical OK [The component numbers cannot be looked up: cannot open nowhere.mdb: No such file or directory. Nothing was saved. Choose another component database, or mend this one.]
> click cmdAddnew
box [Kelmar error] critical OK [The components cannot be listed: cannot open nowhere.mdb: No such file or directory. Choose another component database, or mend this one.]
> click cmdSuggest
box [Kelmar error] critical OK [No ID number can be suggested: cannot open nowhere.mdb: No such file or directory. Type an ID number, or mend the file and try again.]
> choose comp.mdb
> click cmdCompdb
dialog save [Kelmar database files (*.MDB)|*.MDB]
> select 1
box [Kelmar error] critical OK [The species cannot be shown: x.mdb, record 2 (FeX): the log K is "abc", not a number. Mend the file with a text editor, or open another one.]
> state
cboComp shown [] 1
  [H2O]
changedone [N]
cmdDelete hidden [Delete this species]
cmdNextcomp shown [Next component]
cmdSuggest shown [Suggest ID number]
compslot 1
lblAddnew shown [Add new species:]
lblComp shown [Component no. 1]
lblSpname shown [Species name]
lblStoich(1) hidden [Stoichiometry of 1st component]
lblStoich(2) hidden [Stoichiometry of 2nd component]
lstReactions shown [FeX] 3
  [CuX]
  [FeX]
  []
txtCharge shown []
txtComp(1) hidden []
txtComp(2) hidden []
txtID shown []
txtName shown []
txtNocomp shown []
txtSpname shown []
txtStoich(1) hidden []
txtStoich(2) hidden []
txtStoicn shown []
txtdhr shown []
txtlogk shown []
> select 0
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
box [Kelmar error] critical OK [The database was not saved: x.mdb, record 3 (cut): the file ends inside the record. Put that right and save again.]
> answer Yes
> click cmdDelete
box [Deletion of species - Kelmar] question YesNo [Are you really sure you would like to delete this species from the database? Once deleted it is gone!]
box [Kelmar error] critical OK [The species was not deleted: x.mdb, record 3 (cut): the file ends inside the record. Put that right and try again.]
> choose copy.mdb
> click cmdNewDb
dialog save [Sorption database files (*.MDB)|*.MDB]
> choose odd.mdb
> click cmdCompdb
dialog save [Kelmar database files (*.MDB)|*.MDB]
> select 0
box [Kelmar error] critical OK [The components are shown by number: odd.mdb, record 1: a quoted text is not closed on its line. Choose another component database, or mend this one.]
> click cmdAddnew
box [Kelmar error] critical OK [The components cannot be listed: odd.mdb, record 1: a quoted text is not closed on its line. Choose another component database, or mend this one.]
> choose huge.mdb
> click cmdCompdb
dialog save [Kelmar database files (*.MDB)|*.MDB]
> click cmdAddnew
> type cboComp huge
> type txtStoicn 1
> type txtSpname New
> click cmdSuggest
box [Kelmar error] critical OK [No ID number can be suggested: copy.mdb, record 3 (cut): the file ends inside the record. Type an ID number, or mend the file and try again.]
file copy.mdb
+ 501,"CuX",0,1.5,0,0,2,0,0,0,0,2
+ 1,231,-1,9999
+ 502,FeX,0,abc,0,0,0,0,0,0,0,0
+ 503,"cut",0,1
gone sorptemp.dat
