# A screen reader reaches what a message box shuts off: no handler runs inside the box of another.
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
> select 2
> asked current 4
> asked press cmdAddnew
> asked press cmdDelete
> asked close
> answer Yes
> press cmdDelete
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
  [HPO4-2]
  [CaSO4]
txtNocomp shown [0]
file x.mdb
- 503,"FeSO4+",0,3.5,0,0,1,0,0,0,0,2
- 1,150,1,231
gone sorptemp.dat
