# What a species shows by its name, its numbers and the name of its database. A component without its stoichiometry is not
# taken by a suggestion.
put f.iso
| "Freundlich"
| 11500000,"/FA-",0,1.5,0,7,2,0,0,0,0,0
| 11500000,"/HA-",0,1.5,0,7,2,0,0,0,0,0
| 11500000,"Lk2X",0,1.5,0,7,2,0,0,0,0,0
| 501,"MbX",0,1.5,0,0,2,0,0,0,0,102
| 1,231,2,330
| 3
| .5,231,,330,,231
| 502,"ManyX",0,1.5,0,0,2,0,0,0,0,10
| 1,231,1,330,1,150,1,812,1,,1,231,1,231,1,231,1,231,1,231
| 503,"BadX",0,1.5,0,0,x,0,0,0,0,0
| trailer
put mydonnica.cdb
| 501,"CuX",0,1.5,0,0,2,0,0,7,0,0
| trailer
put sorptemp.dat
| f.iso
> load
> select 0
> state
cboIsoterm shown [Freundlich] 7
  [Linear Kd]
  [Freundlich]
  [Extended Freundlich]
  [Langmuir]
  [Temkin]
  [Langmuir-Freundlich]
  [NICA]
cmdDelete shown [Delete this species]
compdb [comp.mdb]
dbname [f.iso]
isomodel [Freundlich]
isoselect [Freundlich]
lblIsoterm shown [Isotherm model]
lblLogk shown [log KF]
lblMA shown [M.A.]
lblMB shown [M.B.*]
lblMBnote shown [* Leave M.B. field blank if the M.B. stoichiometry is equal to the M.A. stocihiometry]
lblNameDb shown [f.iso]
lbldhr hidden [dHr (kJ/mol)]
lstReactions shown [/FA-] 6
  [/FA-]
  [/HA-]
  [Lk2X]
  [MbX]
  [ManyX]
  [BadX]
mbfields true
txtCharge shown [ 2]
txtID shown [ 11500000]
txtName shown [/FA-]
txtNocomp shown [ 0]
txtdhr hidden [  0]
txtlogk shown [  1.5]
> select 1
> state
lstReactions shown [/HA-] 6
  [/FA-]
  [/HA-]
  [Lk2X]
  [MbX]
  [ManyX]
  [BadX]
txtName shown [/HA-]
> select 2
> state
lblLk2 shown [Lk2]
lstReactions shown [Lk2X] 6
  [/FA-]
  [/HA-]
  [Lk2X]
  [MbX]
  [ManyX]
  [BadX]
txtLk2 shown [  7]
txtName shown [Lk2X]
> select 3
> state
lblLk2 hidden [Lk2]
lblStoich(1) shown [Stoichiometry of 1st component]
lblStoich(2) shown [Stoichiometry of 2nd component]
lstReactions shown [MbX] 6
  [/FA-]
  [/HA-]
  [Lk2X]
  [MbX]
  [ManyX]
  [BadX]
txtComp(1) shown [Cu+2]
txtComp(2) shown [H+]
txtID shown [ 501]
txtLk2 hidden [  7]
txtMBstoich(1) shown []
txtMBstoich(2) shown []
txtName shown [MbX]
txtNocomp shown [ 2]
txtStoich(1) shown [ 1]
txtStoich(2) shown [ 2]
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
> choose no-components.mdb
> click cmdCompdb
dialog save [Kelmar database files (*.MDB)|*.MDB]
> select 4
box [Kelmar error] critical OK [The components are shown by number: cannot open no-components.mdb: No such file or directory. Choose another component database, or mend this one. ManyX has 10 components: the window holds eight, and the others stay in the database unseen. Change this species with a text editor.]
> state
changedone [N]
compdb [no-components.mdb]
lblStoich(3) shown [Stoichiometry of 3rd component]
lblStoich(4) shown [Stoichiometry of 4th component]
lblStoich(5) shown [Stoichiometry of 5th component]
lblStoich(6) shown [Stoichiometry of 6th component]
lblStoich(7) shown [Stoichiometry of 7th component]
lblStoich(8) shown [Stoichiometry of 8th component]
lstReactions shown [ManyX] 6
  [/FA-]
  [/HA-]
  [Lk2X]
  [MbX]
  [ManyX]
  [BadX]
txtComp(1) shown [#231]
txtComp(2) shown [#330]
txtComp(3) shown [#150]
txtComp(4) shown [#812]
txtComp(5) shown [#]
txtComp(6) shown [#231]
txtComp(7) shown [#231]
txtComp(8) shown [#231]
txtID shown [ 502]
txtMBstoich(3) shown []
txtMBstoich(4) shown []
txtMBstoich(5) shown []
txtMBstoich(6) shown []
txtMBstoich(7) shown []
txtMBstoich(8) shown []
txtName shown [ManyX]
txtNocomp shown [ 10]
txtStoich(2) shown [ 1]
txtStoich(3) shown [ 1]
txtStoich(4) shown [ 1]
txtStoich(5) shown [ 1]
txtStoich(6) shown [ 1]
txtStoich(7) shown [ 1]
txtStoich(8) shown [ 1]
> select 5
box [Kelmar error] critical OK [The species cannot be shown: f.iso, record 6 (BadX): the charge is "x", not a number. Mend the file with a text editor, or open another one.]
> state
cmdDelete hidden [Delete this species]
lblStoich(1) hidden [Stoichiometry of 1st component]
lblStoich(2) hidden [Stoichiometry of 2nd component]
lblStoich(3) hidden [Stoichiometry of 3rd component]
lblStoich(4) hidden [Stoichiometry of 4th component]
lblStoich(5) hidden [Stoichiometry of 5th component]
lblStoich(6) hidden [Stoichiometry of 6th component]
lblStoich(7) hidden [Stoichiometry of 7th component]
lblStoich(8) hidden [Stoichiometry of 8th component]
lstReactions shown [BadX] 6
  [/FA-]
  [/HA-]
  [Lk2X]
  [MbX]
  [ManyX]
  [BadX]
txtCharge shown []
txtComp(1) hidden [#231]
txtComp(2) hidden [#330]
txtComp(3) hidden [#150]
txtComp(4) hidden [#812]
txtComp(5) hidden [#]
txtComp(6) hidden [#231]
txtComp(7) hidden [#231]
txtComp(8) hidden [#231]
txtID shown []
txtLk2 hidden []
txtMBstoich(1) hidden []
txtMBstoich(2) hidden []
txtMBstoich(3) hidden []
txtMBstoich(4) hidden []
txtMBstoich(5) hidden []
txtMBstoich(6) hidden []
txtMBstoich(7) hidden []
txtMBstoich(8) hidden []
txtName shown []
txtNocomp shown []
txtStoich(1) hidden [ 1]
txtStoich(2) hidden [ 1]
txtStoich(3) hidden [ 1]
txtStoich(4) hidden [ 1]
txtStoich(5) hidden [ 1]
txtStoich(6) hidden [ 1]
txtStoich(7) hidden [ 1]
txtStoich(8) hidden [ 1]
txtdhr hidden []
txtlogk shown []
> choose mydonnica.cdb
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 0
> state
cboIsoterm hidden [Freundlich] 7
  [Linear Kd]
  [Freundlich]
  [Extended Freundlich]
  [Langmuir]
  [Temkin]
  [Langmuir-Freundlich]
  [NICA]
cdbfile true
cmdDelete shown [Delete this species]
dbname [mydonnica.cdb]
isomodel []
isoselect []
lblIsoterm hidden [Isotherm model]
lblLogk shown [log K]
lblMA hidden [M.A.]
lblMB hidden [M.B.*]
lblMBnote hidden [* Leave M.B. field blank if the M.B. stoichiometry is equal to the M.A. stocihiometry]
lblNameDb shown [mydonnica.cdb]
lbldhr shown [dHr (kJ/mol)]
lstReactions shown [CuX] 1
  [CuX]
mbfields false
txtCharge shown [ 2]
txtID shown [ 501]
txtKsel hidden [  0]
txtName shown [CuX]
txtNocomp shown [ 0]
txtdhr shown [  0]
txtlogk shown [  1.5]
> choose comp.mdb
> click cmdCompdb
dialog save [Kelmar database files (*.MDB)|*.MDB]
> click cmdAddnew
> type txtSpname New
> type cboComp Cu+2
> click cmdSuggest
> state
cboComp shown [Cu+2] 60
  [Ag+]
  [Al+3]
  [Ba+2]
  [Br-]
  [Ca+2]
  [Cd+2]
  [Cl-]
  [CO3-2]
  [Cs+]
  [Cu+]
  [Cu+2]
  [e-]
  [F-]
  [Fe+2]
  [Fe+3]
  [H+]
  [H3AsO3]
  [H3AsO4]
  [H3BO3]
  [H4SiO4]
  [HS-]
  [HSe-]
  [I-]
  [K+]
  [Li+]
  [Mg+2]
  [Mn+2]
  [Mn+3]
  [MnO4-]
  [MnO4-2]
  [Na+]
  [NH4+]
  [Ni+2]
  [NO2-]
  [NO3-]
  [Pb+2]
  [PO4-3]
  [Rb+]
  [SeO3-2]
  [SeO4-2]
  [SO4-2]
  [Sr+2]
  [U+3]
  [U+4]
  [UO2+]
  [UO2+2]
  [Zn+2]
  [=SOHh]
  [=SOH]
  [=S3O]
  [psi0]
  [psib]
  [psid]
  [BL-]
  [X-]
  [Fulvate-2]
  [Humate-2]
  [FAH]
  [HAH]
  [H2O]
cmdDelete hidden [Delete this species]
cmdNextcomp shown [Next component]
cmdSuggest shown [Suggest ID number]
compdb [comp.mdb]
compslot 1
lblAddnew shown [Add new species:]
lblComp shown [Component no. 1]
lblSpname shown [Species name]
lstReactions shown [New] 2
  [CuX]
  [New]
txtCharge shown []
txtComp(1) hidden []
txtComp(2) hidden []
txtComp(3) hidden []
txtComp(4) hidden []
txtComp(5) hidden []
txtComp(6) hidden []
txtComp(7) hidden []
txtComp(8) hidden []
txtID shown [ 0]
txtKsel hidden []
txtName shown [New]
txtSpname shown [New]
txtStoich(1) hidden []
txtStoich(2) hidden []
txtStoich(3) hidden []
txtStoich(4) hidden []
txtStoich(5) hidden []
txtStoich(6) hidden []
txtStoich(7) hidden []
txtStoich(8) hidden []
txtStoicn shown []
txtdhr shown []
txtlogk shown []
file f.iso
+ 501,"MbX",0,1.5,0,0,2,0,0,0,0,2
+ 503,"BadX",0,1.5,0,0,"x",0,0,0,0,0
- 501,"MbX",0,1.5,0,0,2,0,0,0,0,102
- 3
- .5,231,,330,,231
- 503,"BadX",0,1.5,0,0,x,0,0,0,0,0
gone sorptemp.dat
