# Events that are made while the program is busy are played in their order: a deletion, and changes.
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
> select 0
> haste
> select 3
> select 4
> answer Yes
> click cmdDelete
> settle
box [Deletion of species - Kelmar] question YesNo [Are you really sure you would like to delete this species from the database? Once deleted it is gone!]
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
lbldhr shown [dHr (kJ/mol)]
lstReactions shown [] 4
  [FeOH+2]
  [Fe(OH)3-]
  [FeSO4+]
  [HPO4-2]
txtNocomp shown [0]
file x.mdb
- 505,"CaSO4",0,5.5,0,0,0,0,0,0,0,2
- 1,150,1,231
gone sorptemp.dat
