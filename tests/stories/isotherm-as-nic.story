# An isotherm database under another name keeps its M.B. stoichiometries.
put x.iso
| "Freundlich"
| 501,"CuX",0,1.5,0,0,2,0,0,0,0,101
| 1,231
| 1
| .5,231
| trailer
put sorptemp.dat
| x.iso
> load
> select 0
> choose y.nic
> click cmdNewDb
dialog save [Isotherm database files (*.ISO)|*.ISO]
box [Kelmar error] critical OK [y.nic holds an isotherm database, but its name is that of a NICA-Donnan database. The list and the boxes may therefore be wrong: give it a name that ends in .ISO and open it again.]
> select 0
> type txtlogk 3
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
> state
cboIsoterm shown [Freundlich] 7
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
dbname [y.nic]
isomodel [Freundlich]
isoselect [Freundlich]
lblIsoterm shown [Isotherm model]
lblLogk shown [log KF]
lblMA shown [M.A.]
lblMB shown [M.B.*]
lblMBnote shown [* Leave M.B. field blank if the M.B. stoichiometry is equal to the M.A. stocihiometry]
lblNameDb shown [y.nic]
lblStoich(1) shown [Stoichiometry of 1st component]
lbldhr shown [dHr (kJ/mol)]
lstReactions shown [] 1
  [CuX]
mbfields true
txtCharge shown [ 2]
txtComp(1) shown [Cu+2]
txtID shown [ 501]
txtMBstoich(1) shown [ .5]
txtName shown [CuX]
txtNocomp shown [ 1]
txtStoich(1) shown [ 1]
txtdhr shown [  0]
txtlogk shown [3]
file y.nic
+ "Freundlich"
+ 501,"CuX",0,3,0,0,2,0,0,0,0,101
+ 1,231
+ 1
+ .5,231
+ 0,"",0,0,0,0,0,0,0,0
+ 0,0
+ 0,"For KELMAR",0,0,0,0,0,0,0,0
+ 0,0
+ 0,"",0,0,0,0,0,0,0,0
+ 0,0
gone sorptemp.dat
