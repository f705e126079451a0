# Saved under a name of another kind, and then under a right one again: what the wrong name showed goes.
put x.mdb
| 501,"CuX",0,1.5,0,0,2,0,0,0,0,1
| 1,231
| trailer
put sorptemp.dat
| x.mdb
> load
> select 0
> choose y.iso
> click cmdNewDb
dialog save [Sorption database files (*.MDB)|*.MDB]
box [Kelmar error] critical OK [y.iso holds a complexation / sorption database, but its name is that of an isotherm database. The list and the boxes may therefore be wrong: give it a name that ends in .MDB and open it again.]
> state
cboIsoterm shown [501] 7
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
dbname [y.iso]
isomodel [501]
isoselect [501]
lblIsoterm shown [Isotherm model]
lblNameDb shown [y.iso]
lblStoich(1) shown [Stoichiometry of 1st component]
lbldhr hidden [dHr (kJ/mol)]
lstReactions shown [] 3
  [0]
  [0]
  [0]
txtCharge shown [ 2]
txtComp(1) shown [Cu+2]
txtID shown [ 501]
txtName shown [CuX]
txtNocomp shown [ 1]
txtStoich(1) shown [ 1]
txtdhr hidden [  0]
txtlogk shown [  1.5]
> type txtlogk 7
> choose z.mdb
> click cmdNewDb
dialog save [Isotherm database files (*.ISO)|*.ISO]
> state
cboIsoterm hidden [501] 7
  [Linear Kd]
  [Freundlich]
  [Extended Freundlich]
  [Langmuir]
  [Temkin]
  [Langmuir-Freundlich]
  [NICA]
dbname [z.mdb]
isomodel []
isoselect []
lblIsoterm hidden [Isotherm model]
lblNameDb shown [z.mdb]
lbldhr shown [dHr (kJ/mol)]
lstReactions shown [] 1
  [CuX]
txtdhr shown [  0]
txtlogk shown [7]
file y.iso
+ 501,"CuX",0,1.5,0,0,2,0,0,0,0,1
+ 1,231
+ 0,"",0,0,0,0,0,0,0,0
+ 0,0
+ 0,"For KELMAR",0,0,0,0,0,0,0,0
+ 0,0
+ 0,"",0,0,0,0,0,0,0,0
+ 0,0
file z.mdb
+ 501,"CuX",0,1.5,0,0,2,0,0,0,0,1
+ 1,231
+ 0,"",0,0,0,0,0,0,0,0
+ 0,0
+ 0,"For KELMAR",0,0,0,0,0,0,0,0
+ 0,0
+ 0,"",0,0,0,0,0,0,0,0
+ 0,0
gone sorptemp.dat
