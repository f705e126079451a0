# What the mouse does to the list: the selection always shows, and is never taken back.
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
> key Down
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
lbldhr shown [dHr (kJ/mol)]
lstReactions shown [FeOH+2] 5
  [FeOH+2]
  [Fe(OH)3-]
  [FeSO4+]
  [HPO4-2]
  [CaSO4]
txtCharge shown [ 2]
txtComp(1) shown [Ca+2]
txtComp(2) shown [H+]
txtID shown [ 501]
txtName shown [FeOH+2]
txtNocomp shown [ 2]
txtStoich(1) shown [ 1]
txtStoich(2) shown [-1]
txtdhr shown [  0]
txtlogk shown [  1.5]
> mouse 2
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
> mouse empty
> state
> mouse 2 Ctrl
> state
> mouse 4 Right
> state
> mouse empty Right
> state
> drag 2 4
> state
> type txtlogk 7
> mouse 2
focus lstReactions
> state
> mouse 4 Ctrl
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
> mouse 1 Double
> state
lstReactions shown [Fe(OH)3-] 5
  [FeOH+2]
  [Fe(OH)3-]
  [FeSO4+]
  [HPO4-2]
  [CaSO4]
txtCharge shown [-1]
txtComp(2) shown [H+]
txtID shown [ 502]
txtName shown [Fe(OH)3-]
txtStoich(2) shown [-3]
txtlogk shown [  2.5]
> click cmdQuit
ended
gone sorptemp.dat
