# What the boxes become in the file: the toxicity flag, M.B. stoichiometries up to 99, and what is too large or too long.
put t.bli
| "text"
| "label",.5
| 501,"Yes",0,1.5,0,0,2,0,0,0,0,0
| 502,"yes",0,1.5,0,0,2,0,0,0,0,0
| 503,"No",0,1.5,0,1,2,0,0,0,0,0
| 504,"gone",0,1.5,0,1,2,0,0,0,0,0
| trailer
put f.iso
| "Freundlich"
| 501,"CuX",0,1.5,0,0,2,0,0,0,0,2
| 1,231,2,330
| 502,"FeX",0,1.5,0,0,2,0,0,0,0,2
| 1,231,2,330
| 503,"NiX",0,1.5,0,0,2,0,0,0,0,2
| 1,231,2,330
| trailer
put sorptemp.dat
| t.bli
> load
> type txtf50  .125x
> select 0
> type txtKsel  Yes 
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
> select 1
> type txtKsel yes
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
> select 2
> type txtKsel No
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
> select 3
> type txtf50 .375
> answer Yes
> click cmdDelete
box [Deletion of species - Kelmar] question YesNo [Are you really sure you would like to delete this species from the database? Once deleted it is gone!]
> choose f.iso
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 0
> type txtMBstoich(1) 99
> type txtMBstoich(2) 98,9
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
> select 1
> type txtMBstoich(2) 99
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
> select 2
> type txtNocomp 9
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
box [Kelmar error] critical OK [A species has at most eight components, and the number of components is 9. Correct it before saving.]
> type txtNocomp 1.9
> type txtID 0
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
box [Kelmar error] critical OK [The ID number is 0, which would end the list of species. Give another one.]
> type txtID 501.5
> type txtName a"b
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
box [Kelmar error] critical OK [A species name cannot hold a double quote or a line end. Correct it before saving.]
> type txtName  a,b 
> type txtComp(1) =SOH
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
file f.iso
+ 501,"CuX",0,1.5,0,0,2,0,0,0,0,102
+ 1
+ 98.9,330
+ 501.5,"a,b",0,1.5,0,0,2,0,0,0,0,1
+ 1,812
- 501,"CuX",0,1.5,0,0,2,0,0,0,0,2
- 503,"NiX",0,1.5,0,0,2,0,0,0,0,2
- 1,231,2,330
file t.bli
+ "label",.375
+ 501,"Yes",0,1.5,0,1,2,0,0,0,0,0
+ 503,"No",0,1.5,0,0,2,0,0,0,0,0
- "label",.5
- 501,"Yes",0,1.5,0,0,2,0,0,0,0,0
- 503,"No",0,1.5,0,1,2,0,0,0,0,0
- 504,"gone",0,1.5,0,1,2,0,0,0,0,0
gone sorptemp.dat
