# What stands after an empty line is not dropped: the list is shown to there, and not rewritten.
put x.mdb
| 501,"CuX",0,1.5,0,0,2,0,0,0,0,0
|
| 502,"FeX",0,1.5,0,0,2,0,0,0,0,0
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
lstReactions shown [] 1
  [CuX]
> select 0
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
box [Kelmar error] critical OK [x.mdb, record 2: an empty line or field ends the list here, and what stands after it would be lost. Nothing was changed. Remove the empty line with a text editor.]
> answer Yes
> click cmdDelete
box [Deletion of species - Kelmar] question YesNo [Are you really sure you would like to delete this species from the database? Once deleted it is gone!]
box [Kelmar error] critical OK [x.mdb, record 2: an empty line or field ends the list here, and what stands after it would be lost. Nothing was changed. Remove the empty line with a text editor.]
> choose new.iso
> click cmdNewDb
dialog save [Sorption database files (*.MDB)|*.MDB]
box [Kelmar error] critical OK [new.iso, record 2: an empty line or field ends the list here, and what stands after it would be lost. Nothing was changed. Remove the empty line with a text editor.]
file new.iso
+ 501,"CuX",0,1.5,0,0,2,0,0,0,0,0
+ 
+ 502,"FeX",0,1.5,0,0,2,0,0,0,0,0
+ 0,"",0,0,0,0,0,0,0,0
+ 0,0
+ 0,"For KELMAR",0,0,0,0,0,0,0,0
+ 0,0
+ 0,"",0,0,0,0,0,0,0,0
+ 0,0
gone sorptemp.dat
