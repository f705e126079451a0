# Eight components at most: a ninth is refused, and of a species with nine the rest stays unseen.
put x.mdb
| 501,"big",0,0,0,0,0,0,0,0,0,9
| 1,231,2,231,3,231,4,231,5,231,6,231,7,231,8,231,9,231
| 502,"b",0,0,0,0,0,0,0,0,0,0
| trailer
put sorptemp.dat
| x.mdb
> load
> select 0
box [Kelmar error] critical OK [big has 9 components: the window holds eight, and the others stay in the database unseen. Change this species with a text editor.]
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
lblStoich(3) shown [Stoichiometry of 3rd component]
lblStoich(4) shown [Stoichiometry of 4th component]
lblStoich(5) shown [Stoichiometry of 5th component]
lblStoich(6) shown [Stoichiometry of 6th component]
lblStoich(7) shown [Stoichiometry of 7th component]
lblStoich(8) shown [Stoichiometry of 8th component]
lbldhr shown [dHr (kJ/mol)]
lstReactions shown [big] 2
  [big]
  [b]
txtCharge shown [ 0]
txtComp(1) shown [Cu+2]
txtComp(2) shown [Cu+2]
txtComp(3) shown [Cu+2]
txtComp(4) shown [Cu+2]
txtComp(5) shown [Cu+2]
txtComp(6) shown [Cu+2]
txtComp(7) shown [Cu+2]
txtComp(8) shown [Cu+2]
txtID shown [ 501]
txtName shown [big]
txtNocomp shown [ 9]
txtStoich(1) shown [ 1]
txtStoich(2) shown [ 2]
txtStoich(3) shown [ 3]
txtStoich(4) shown [ 4]
txtStoich(5) shown [ 5]
txtStoich(6) shown [ 6]
txtStoich(7) shown [ 7]
txtStoich(8) shown [ 8]
txtdhr shown [  0]
txtlogk shown [  0]
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
box [Kelmar error] critical OK [A species has at most eight components, and the number of components is 9. Correct it before saving.]
> select 1
> answer Yes
> click cmdDelete
box [Deletion of species - Kelmar] question YesNo [Are you really sure you would like to delete this species from the database? Once deleted it is gone!]
> click cmdAddnew
> click cmdNextcomp
> click cmdNextcomp
> click cmdNextcomp
> click cmdNextcomp
> click cmdNextcomp
> click cmdNextcomp
> click cmdNextcomp
> click cmdNextcomp
> type cboComp Cu+2
> type txtStoicn 1
> click cmdNextcomp
box [Kelmar error] critical OK [A species has at most eight components. Save this one, or start again with "Add new species".]
> click cmdSuggest
box [Kelmar error] critical OK [A species has at most eight components. Save this one, or start again with "Add new species".]
> state
cboComp shown [Cu+2] 59
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
changedone [N]
cmdDelete hidden [Delete this species]
cmdNextcomp shown [Next component]
cmdSuggest shown [Suggest ID number]
compslot 9
lblAddnew shown [Add new species:]
lblComp shown [Component no.  9]
lblSpname shown [Species name]
lstReactions shown [] 1
  [big]
txtCharge shown []
txtComp(1) shown []
txtComp(2) shown []
txtComp(3) shown []
txtComp(4) shown []
txtComp(5) shown []
txtComp(6) shown []
txtComp(7) shown []
txtComp(8) shown []
txtID shown []
txtName shown []
txtNocomp shown [0]
txtSpname shown []
txtStoich(1) shown []
txtStoich(2) shown []
txtStoich(3) shown []
txtStoich(4) shown []
txtStoich(5) shown []
txtStoich(6) shown []
txtStoich(7) shown []
txtStoich(8) shown []
txtStoicn shown [1]
txtdhr shown []
txtlogk shown []
> type txtID 0
> type txtlogk 1
> type txtCharge 0
> type txtSpname New
> type cboComp 
> click cmdSuggest
> type txtID 0
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
box [Kelmar error] critical OK [The ID number is 0, which would end the list of species. Give another one.]
> type txtID 7
> type txtName a"b
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
box [Kelmar error] critical OK [A species name cannot hold a double quote or a line end. Correct it before saving.]
> type txtName New
> type txtNocomp 9
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
box [Kelmar error] critical OK [A species has at most eight components, and the number of components is 9. Correct it before saving.]
> type txtNocomp 0
> type txtlogk 1E999
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
box [Kelmar error] critical OK ["1E999" is too large a number. Correct it before saving.]
file x.mdb
- 502,"b",0,0,0,0,0,0,0,0,0,0
gone sorptemp.dat
