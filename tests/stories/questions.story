# Every question, and every refusal of the save and the delete button.
> load
> click cmdDelete
hidden cmdDelete
> choose goethite.MDB
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
box [Kelmar error] critical OK [Please use the mouse to select the database species to be changed before saving]
> select 2
> type txtCharge  
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
box [Kelmar error] critical OK [One or more required data fields have been left blank. Please complete before saving]
> select 3
> answer No
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
> click cmdDelete
box [Deletion of species - Kelmar] question YesNo [Are you really sure you would like to delete this species from the database? Once deleted it is gone!]
> answer Yes
> click cmdDelete
box [Deletion of species - Kelmar] question YesNo [Are you really sure you would like to delete this species from the database? Once deleted it is gone!]
> click cmdDelete
box [Kelmar] critical OK [No species defined]
> click cmdAddnew
> type txtSpname Dummy
> click cmdSuggest
> select 15
> select 16
> click cmdDelete
box [Kelmar] critical OK [This species is not yet in the database anyway]
> select 1
> click cmdAddnew
> type txtSpname Dummy
> click cmdSuggest
> click cmdDelete
hidden cmdDelete
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
cboIsoterm hidden [] 7
  [Linear Kd]
  [Freundlich]
  [Extended Freundlich]
  [Langmuir]
  [Temkin]
  [Langmuir-Freundlich]
  [NICA]
cmdNextcomp shown [Next component]
cmdSuggest shown [Suggest ID number]
compdb [comp.mdb]
compslot 1
dbname [goethite.MDB]
lblAddnew shown [Add new species:]
lblComp shown [Component no. 1]
lblNameDb shown [goethite.MDB]
lblSpname shown [Species name]
lbldhr shown [dHr (kJ/mol)]
lstReactions shown [Dummy] 17
  [=SOH2+.5]
  [=SOHNa+.5]
  [=SOHK+.5]
  [=SOH2Cl-.5]
  [=S3OH+.5]
  [=S3ONa+.5]
  [=S3OK+.5]
  [=S3OHNO3-.5]
  [=S3OHCl-.5]
  [=SOPO3-2.5]
  [(=SO)2PO2-2]
  [(=SO)2POOH-]
  [=SOSO3-1.5]
  [(=SOH)2Cu+]
  [(=SOH)2CuOH]
  [(=SO)2CuPO3-]
  [Dummy]
txtID shown [ 0]
txtName shown [Dummy]
txtNocomp shown [ 0]
txtSpname shown [Dummy]
txtStoicn shown []
file goethite.MDB
- 8125150,"=SOH2NO3-.5",0,8.52,0,0,-.5,0,0,0,0,5
- 1,812,1,515,1,330,1,861,-1,862
gone sorptemp.dat
