# The same of isotherm models.
put sorptemp.dat
| langmuir.ISO
> load
> select 0
> haste
> select 1
> pick cboIsoterm 4
> select 3
> answer Yes
> click cmdSavedb
> select 4
> select 5
> answer Yes
> click cmdDelete
> settle
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
box [Deletion of species - Kelmar] question YesNo [Are you really sure you would like to delete this species from the database? Once deleted it is gone!]
> state
cboIsoterm shown [Temkin] 7
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
dbname [langmuir.ISO]
isomodel [Temkin]
isoselect [Temkin]
lblIsoterm shown [Isotherm model]
lblLogk shown [log KT]
lblNameDb shown [langmuir.ISO]
lbldhr hidden [dHr (kJ/mol)]
lstReactions shown [] 9
  [L1Cu]
  [L1Cd]
  [L1Zn]
  [L1Pb]
  [L1Ca]
  [L2PO4]
  [L2As]
  [L2Si]
  [L2CO3]
txtNocomp shown [0]
txtdhr hidden []
file langmuir.ISO
+ "Temkin"
- "Langmuir"
- 13013300,"L1H",0,4.05,0,0,1,0,0,0,0,2
- 1,1301,1,330
gone sorptemp.dat
