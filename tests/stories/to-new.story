# To a new database, onto the open one, and where it cannot be: a failure is silent, a refusal is not, and what lies under the
# name then is not taken for the database.
put x.mdb
| 501,"CuX",0,1.5,0,0,2,0,0,0,0,0
| trailer
put there.iso
| "Langmuir"
| 501,"CuX",0,2.5,0,0,2,0,0,0,0,0
| trailer
put other.mdb
| 501,"CuX",0,4,0,0,2,0,0,0,0,0
| trailer
folder there.iso.dbnamep
folder folder
put sorptemp.dat
| x.mdb
> load
> select 0
> type txtlogk 9
> choose new.mdb
> click cmdNewDb
dialog save [Sorption database files (*.MDB)|*.MDB]
> state
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
dbname [new.mdb]
lblNameDb shown [new.mdb]
lbldhr shown [dHr (kJ/mol)]
lstReactions shown [] 1
  [CuX]
txtCharge shown [ 2]
txtID shown [ 501]
txtName shown [CuX]
txtNocomp shown [ 0]
txtdhr shown [  0]
txtlogk shown [9]
> select 0
> choose new.mdb
> click cmdNewDb
dialog save [Sorption database files (*.MDB)|*.MDB]
> select 0
> type txtlogk 10
> choose nowhere/y.mdb
> click cmdNewDb
dialog save [Sorption database files (*.MDB)|*.MDB]
> state
dbname [nowhere/y.mdb]
lstReactions shown [CuX] 1
  [CuX]
txtlogk shown [10]
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
box [Kelmar error] critical OK [The database was not saved: cannot open nowhere/y.mdb: No such file or directory. Put that right and save again.]
> choose new.mdb
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> choose folder
> click cmdNewDb
dialog save [Sorption database files (*.MDB)|*.MDB]
box [Kelmar error] critical OK [folder is not a plain file. Choose another name.]
> state
dbname [new.mdb]
lstReactions shown [] 1
  [CuX]
> choose there.iso
> click cmdNewDb
dialog save [Sorption database files (*.MDB)|*.MDB]
box [Kelmar error] critical OK [there.iso.dbnamep is in the way: it is not a plain file. Remove it and try again.]
> state
> choose nowhere.mdb
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> choose there.iso
> click cmdNewDb
dialog save [Sorption database files (*.MDB)|*.MDB]
box [Kelmar error] critical OK [there.iso.dbnamep is in the way: it is not a plain file. Remove it and try again.]
> state
dbname [nowhere.mdb]
lblNameDb shown [nowhere.mdb]
lstReactions shown [] 0
> click cmdAddnew
> type txtSpname New
> click cmdSuggest
box [Kelmar error] critical OK [No ID number can be suggested: cannot open nowhere.mdb: No such file or directory. Type an ID number, or mend the file and try again.]
> type txtID 7
> type txtlogk 1
> type txtCharge 0
> choose other.mdb
> click cmdNewDb
dialog save [Sorption database files (*.MDB)|*.MDB]
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
box [Kelmar error] critical OK [other.mdb is another database than the one that was open, which could not be copied there. Open the one or the other with the File menu.]
> choose copy.mdb
> click cmdNewDb
dialog save [Sorption database files (*.MDB)|*.MDB]
box [Kelmar error] critical OK [other.mdb is another database than the one that was open, which could not be copied there. Open the one or the other with the File menu.]
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
dbname [other.mdb]
lblAddnew shown [Add new species:]
lblComp shown [Component no. 1]
lblSpname shown [Species name]
lstReactions shown [New] 1
  [New]
txtCharge shown [0]
txtID shown [7]
txtName shown [New]
txtSpname shown [New]
txtStoicn shown []
txtdhr shown []
txtlogk shown [1]
file new.mdb
+ 501,"CuX",0,9,0,0,2,0,0,0,0,0
+ 0,"",0,0,0,0,0,0,0,0
+ 0,0
+ 0,"For KELMAR",0,0,0,0,0,0,0,0
+ 0,0
+ 0,"",0,0,0,0,0,0,0,0
+ 0,0
gone sorptemp.dat
