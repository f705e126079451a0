# A change, of the name too; what follows the end marker goes.
put x.mdb
| 501,"CuX",0,1.50,0,0,2,0,0,0,0,2
| 1,231,-1,9999
| 502,"FeX",0,1.5,0,0,2,7,7,7,7,2
| 1,231,-1,9999
| trailer
| more
put sorptemp.dat
| x.mdb
> load
> select 1
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
lstReactions shown [FeX] 2
  [CuX]
  [FeX]
txtCharge shown [ 2]
txtComp(1) shown [Cu+2]
txtComp(2) shown [#9999]
txtID shown [ 502]
txtName shown [FeX]
txtNocomp shown [ 2]
txtStoich(1) shown [ 1]
txtStoich(2) shown [-1]
txtdhr shown [  0]
txtlogk shown [  1.5]
> type txtlogk -12,78
> type txtName  Fe2X 
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
> state
changedone [N]
lstReactions shown [] 2
  [CuX]
  [Fe2X]
txtName shown [ Fe2X ]
txtlogk shown [-12,78]
file x.mdb
+ 501,"CuX",0,1.5,0,0,2,0,0,0,0,2
+ 502,"Fe2X",0,-12.78,0,0,2,0,0,0,0,2
- 501,"CuX",0,1.50,0,0,2,0,0,0,0,2
- 502,"FeX",0,1.5,0,0,2,7,7,7,7,2
- more
gone sorptemp.dat
