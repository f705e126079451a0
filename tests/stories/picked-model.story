# A model is picked, and a species changed: the picked one is saved, and not that of the file.
> load
> choose freundl.ISO
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> pick cboIsoterm 3
> select 0
> type txtlogk 5
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
> state
cboIsoterm shown [Langmuir] 7
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
dbname [freundl.ISO]
isomodel [Langmuir]
isoselect [Langmuir]
lblIsoterm shown [Isotherm model]
lblLogk shown [log KL]
lblNameDb shown [freundl.ISO]
lblStoich(1) shown [Stoichiometry of 1st component]
lbldhr hidden [dHr (kJ/mol)]
lstReactions shown [] 10
  [CuX]
  [CdX]
  [ZnX]
  [PbX]
  [NiX]
  [PO4X]
  [AsX]
  [SeX]
  [CsX]
  [SrX]
txtCharge shown [ 0]
txtComp(1) shown [Cu+2]
txtID shown [ 13012310]
txtName shown [CuX]
txtNocomp shown [ 1]
txtStoich(1) shown [ .58]
txtdhr hidden [  0]
txtlogk shown [5]
file freundl.ISO
+ "Langmuir"
+ 13012310,"CuX",0,5,0,0,0,0,0,0,0,1
- "Freundlich"
- 13012310,"CuX",0,2.86,0,0,0,0,0,0,0,101
- 1,231
- 1
gone sorptemp.dat
