# A BLM database saved under another kind's name, and back under its own by a save that stops at a message. Captions and
# models of the kinds opened after it.
put t.bli
| "text"
| "label",.5
| 501,"CuX",0,1.5,0,0,2,0,0,0,0,0
| trailer
put sorptemp.dat
| t.bli
> load
> select 0
> choose y.mdb
> click cmdNewDb
dialog save [BLM parameter files (*.BLI)|*.BLI]
box [Kelmar error] critical OK [y.mdb holds a BLM parameter database, but its name is that of a complexation / sorption database. The list and the boxes may therefore be wrong: give it a name that ends in .BLI and open it again.]
> choose z.bli
> click cmdNewDb
dialog save [BLM parameter files (*.BLI)|*.BLI]
box [Kelmar error] critical OK [Please use the mouse to select the database species to be changed before saving]
> state
blifile true
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
dbname [z.bli]
lblIsoterm shown [Critical f value]
lblKsel shown [Contributes to toxicity]
lblNameDb shown [z.bli]
lbldhr shown [dHr (kJ/mol)]
lstReactions shown [] 1
  [CuX]
txtCharge shown [ 2]
txtID shown [ 501]
txtKsel shown [ No]
txtName shown [CuX]
txtNocomp shown [ 0]
txtdhr shown [  0]
txtf50 shown [ .5]
txtlogk shown [  1.5]
> choose counter.CDB
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> state
blifile false
cdbfile true
dbname [counter.CDB]
lblIsoterm hidden [Critical f value]
lblKsel shown [Selectivity coefficient (K-sel)]
lblNameDb shown [counter.CDB]
lstReactions shown [] 17
  [NaX]
  [KX]
  [LiX]
  [NH4X]
  [CaX2]
  [MgX2]
  [SrX2]
  [BaX2]
  [MnX2]
  [FeX2]
  [CuX2]
  [ZnX2]
  [CdX2]
  [PbX2]
  [AlX3]
  [AlOHX2]
  [HX]
txtf50 hidden [ .5]
> choose nicadon.NIC
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 0
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
> state
cdbfile false
dbname [nicadon.NIC]
isomodel [NICA-Donnan]
isoselect [NICA-Donnan]
lblKsel hidden [Selectivity coefficient (K-sel)]
lblLk2 shown [n]
lblNameDb shown [nicadon.NIC]
lblStoich(1) shown [Stoichiometry of 1st component]
lblStoich(2) shown [Stoichiometry of 2nd component]
lstReactions shown [] 40
  [FA1-H]
  [FA1-Al]
  [FA1-Ca]
  [FA1-Cd]
  [FA1-Cu]
  [FA1-Fe]
  [FA1-Mg]
  [FA1-Ni]
  [FA1-Pb]
  [FA1-Zn]
  [FA2-H]
  [FA2-Al]
  [FA2-Ca]
  [FA2-Cd]
  [FA2-Cu]
  [FA2-Fe]
  [FA2-Mg]
  [FA2-Ni]
  [FA2-Pb]
  [FA2-Zn]
  [HA1-H]
  [HA1-Al]
  [HA1-Ca]
  [HA1-Cd]
  [HA1-Cu]
  [HA1-Fe]
  [HA1-Mg]
  [HA1-Ni]
  [HA1-Pb]
  [HA1-Zn]
  [HA2-H]
  [HA2-Al]
  [HA2-Ca]
  [HA2-Cd]
  [HA2-Cu]
  [HA2-Fe]
  [HA2-Mg]
  [HA2-Ni]
  [HA2-Pb]
  [HA2-Zn]
txtCharge shown [ 0]
txtComp(1) shown [FA1-]
txtComp(2) shown [H+]
txtID shown [ 13413300]
txtKsel hidden [ No]
txtLk2 shown [  .66]
txtName shown [FA1-H]
txtNocomp shown [ 2]
txtStoich(1) shown [ 1]
txtStoich(2) shown [ 1]
txtlogk shown [  2.34]
file y.mdb
+ "text"
+ "label",.5
+ 501,"CuX",0,1.5,0,0,2,0,0,0,0,0
+ 0,"",0,0,0,0,0,0,0,0
+ 0,0
+ 0,"For KELMAR",0,0,0,0,0,0,0,0
+ 0,0
+ 0,"",0,0,0,0,0,0,0,0
+ 0,0
file z.bli
+ "text"
+ "label",.5
+ 501,"CuX",0,1.5,0,0,2,0,0,0,0,0
+ 0,"",0,0,0,0,0,0,0,0
+ 0,0
+ 0,"For KELMAR",0,0,0,0,0,0,0,0
+ 0,0
+ 0,"",0,0,0,0,0,0,0,0
+ 0,0
gone sorptemp.dat
