# The same of new species.
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
> click cmdAddnew
> haste
> select 3
> click cmdAddnew
> type txtSpname New
> type cboComp H+
> type txtStoicn 2
> click cmdSuggest
> type txtlogk 1
> type txtCharge 1
> answer Yes
> click cmdSavedb
> click cmdAddnew
> settle
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
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
changedone [N]
cmdNextcomp shown [Next component]
cmdSuggest shown [Suggest ID number]
compdb [comp.mdb]
compslot 1
dbname [x.mdb]
lblAddnew shown [Add new species:]
lblComp shown [Component no. 1]
lblNameDb shown [x.mdb]
lblSpname shown [Species name]
lbldhr shown [dHr (kJ/mol)]
lstReactions shown [] 6
  [New]
  [FeOH+2]
  [Fe(OH)3-]
  [FeSO4+]
  [HPO4-2]
  [CaSO4]
txtNocomp shown [0]
txtSpname shown []
txtStoicn shown []
file x.mdb
+ 3300000,"New",0,1,0,0,1,0,0,0,0,1
+ 2,330
gone sorptemp.dat
