# A save with no entry selected changes no species; with a nameless one selected that is saved.
put x.iso
| "Langmuir"
| 501,"CuX",0,1.5,0,0,2,0,0,0,0,0
| 502,"",0,2,0,0,2,0,0,0,0,0
| trailer
put sorptemp.dat
| x.iso
> load
> select 0
> type txtlogk 3
> pick cboIsoterm 4
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
> select 1
> type txtlogk 7
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
> state
cboIsoterm shown [Temkin] 7
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
dbname [x.iso]
isomodel [Temkin]
isoselect [Temkin]
lblIsoterm shown [Isotherm model]
lblLogk shown [log KT]
lblNameDb shown [x.iso]
lbldhr hidden [dHr (kJ/mol)]
lstReactions shown [] 2
  [CuX]
  []
txtCharge shown [ 2]
txtID shown [ 502]
txtNocomp shown [ 0]
txtdhr hidden [  0]
txtlogk shown [7]
file x.iso
+ "Temkin"
+ 502,"",0,7,0,0,2,0,0,0,0,0
- "Langmuir"
- 502,"",0,2,0,0,2,0,0,0,0,0
gone sorptemp.dat
