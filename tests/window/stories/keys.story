# Keys alone reach everything. The tabulator key goes by the table of controls, over those that are shown.
# A key that chooses nothing new shows nothing again, over what was typed.
put x.mdb
| 501,"FeOH+2",0,1.5,0,0,2,0,0,0,0,2
| 1,150,-1,330
| 502,"Fe(OH)3-",0,2.5,0,0,-1,0,0,0,0,2
| 1,150,-3,330
| 503,"FeSO4+",0,3.5,0,0,1,0,0,0,0,2
| 1,150,1,231
| 504,"HPO4-2",0,4.5,0,0,-2,0,0,0,0,2
| 1,150,1,330
| 505,"CaSO4",0,5.5,0,0,0,0,0,0,0,2
| 1,150,1,231
| trailer
put sorptemp.dat
| x.mdb
> load
> state
cboIsoterm hidden [] 7
  [Linear Kd]
  [Freundlich]
  [Extended Freundlich]
  [Langmuir]
  [Temkin]
  [Langmuir-Freundlich]
  [NICA]
compdb [comp.mdb]
dbname [x.mdb]
lblNameDb shown [x.mdb]
lbldhr shown [dHr (kJ/mol)]
lstReactions shown [] 5
  [FeOH+2]
  [Fe(OH)3-]
  [FeSO4+]
  [HPO4-2]
  [CaSO4]
> keys Fe(
> state
cmdDelete shown [Delete this species]
lblStoich(1) shown [Stoichiometry of 1st component]
lblStoich(2) shown [Stoichiometry of 2nd component]
lstReactions shown [Fe(OH)3-] 5
  [FeOH+2]
  [Fe(OH)3-]
  [FeSO4+]
  [HPO4-2]
  [CaSO4]
txtCharge shown [-1]
txtComp(1) shown [Ca+2]
txtComp(2) shown [H+]
txtID shown [ 502]
txtName shown [Fe(OH)3-]
txtNocomp shown [ 2]
txtStoich(1) shown [ 1]
txtStoich(2) shown [-3]
txtdhr shown [  0]
txtlogk shown [  2.5]
> key Down
> state
lstReactions shown [FeSO4+] 5
  [FeOH+2]
  [Fe(OH)3-]
  [FeSO4+]
  [HPO4-2]
  [CaSO4]
txtCharge shown [ 1]
txtComp(2) shown [Cu+2]
txtID shown [ 503]
txtName shown [FeSO4+]
txtStoich(2) shown [ 1]
txtlogk shown [  3.5]
> key Tab
focus txtID
> key Tab
focus txtlogk
> key Tab
focus txtdhr
> key Tab
focus txtCharge
> key Tab
focus txtNocomp
> key Tab
focus txtStoich(1)
> key Tab
focus txtComp(1)
> key Tab
focus txtStoich(2)
> key Tab
focus txtComp(2)
> key Tab
focus txtName
> key Tab
focus cmdAddnew
> key Tab
focus cmdDelete
> key Tab
focus cmdCompdb
> key Tab
focus cmdSavedb
> key Tab
focus cmdNewDb
> key Tab
focus cmdQuit
> key Tab
focus lstReactions
> key Tab
focus txtID
> type txtlogk 7
> focus lstReactions
focus lstReactions
> key Shift
> key F2
> keys ~
> key Ctrl+Space
> key Ctrl+A
> state
txtlogk shown [7]
> key Return
> state
txtlogk shown [  3.5]
> key End
> state
lstReactions shown [CaSO4] 5
  [FeOH+2]
  [Fe(OH)3-]
  [FeSO4+]
  [HPO4-2]
  [CaSO4]
txtCharge shown [ 0]
txtID shown [ 505]
txtName shown [CaSO4]
txtlogk shown [  5.5]
> focus cmdAddnew
focus cmdAddnew
> key Return
> state
cboComp shown [] 59
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
  [Fulvate-2]
  [Humate-2]
  [FAH]
  [HAH]
  [H2O]
cmdDelete hidden [Delete this species]
cmdNextcomp shown [Next component]
cmdSuggest shown [Suggest ID number]
compslot 1
lblAddnew shown [Add new species:]
lblComp shown [Component no. 1]
lblSpname shown [Species name]
lblStoich(1) hidden [Stoichiometry of 1st component]
lblStoich(2) hidden [Stoichiometry of 2nd component]
lstReactions shown [] 5
  [FeOH+2]
  [Fe(OH)3-]
  [FeSO4+]
  [HPO4-2]
  [CaSO4]
txtCharge shown []
txtComp(1) hidden []
txtComp(2) hidden []
txtID shown []
txtName shown []
txtNocomp shown [0]
txtSpname shown []
txtStoich(1) hidden []
txtStoich(2) hidden []
txtStoicn shown []
txtdhr shown []
txtlogk shown []
gone sorptemp.dat
