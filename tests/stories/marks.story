# A component without a name, or whose name means a number; a value that is not shown may be a text.
put comp.mdb
| 77,"#",0,0,0,0
| 78,"#5",0,0,0,0
| 79,"#x",0,0,0,0
put x.mdb
| 501,"CuX",0,1.5,0,0,2,0,0,0,0,105
| 1,,2,5,3,77,4,78,5,79
| 1
| x,77
| trailer
put sorptemp.dat
| x.mdb
> load
> select 0
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
lbldhr shown [dHr (kJ/mol)]
lstReactions shown [CuX] 1
  [CuX]
txtCharge shown [ 2]
txtComp(1) shown [#]
txtComp(2) shown [#5]
txtComp(3) shown [#77]
txtComp(4) shown [#78]
txtComp(5) shown [#x]
txtID shown [ 501]
txtName shown [CuX]
txtNocomp shown [ 5]
txtStoich(1) shown [ 1]
txtStoich(2) shown [ 2]
txtStoich(3) shown [ 3]
txtStoich(4) shown [ 4]
txtStoich(5) shown [ 5]
txtdhr shown [  0]
txtlogk shown [  1.5]
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
> click cmdAddnew
> state
cboComp shown [] 4
  [#77]
  [#78]
  [#x]
  [H2O]
changedone [N]
cmdDelete hidden [Delete this species]
cmdNextcomp shown [Next component]
cmdSuggest shown [Suggest ID number]
compslot 1
lblAddnew shown [Add new species:]
lblComp shown [Component no. 1]
lblSpname shown [Species name]
lblStoich(1) hidden [Stoichiometry of 1st component]
lblStoich(2) hidden [Stoichiometry of 2nd component]
lblStoich(3) hidden [Stoichiometry of 3rd component]
lblStoich(4) hidden [Stoichiometry of 4th component]
lblStoich(5) hidden [Stoichiometry of 5th component]
lstReactions shown [] 1
  [CuX]
txtCharge shown []
txtComp(1) hidden []
txtComp(2) hidden []
txtComp(3) hidden []
txtComp(4) hidden []
txtComp(5) hidden []
txtID shown []
txtName shown []
txtNocomp shown [0]
txtSpname shown []
txtStoich(1) hidden []
txtStoich(2) hidden []
txtStoich(3) hidden []
txtStoich(4) hidden []
txtStoich(5) hidden []
txtStoicn shown []
txtdhr shown []
txtlogk shown []
file x.mdb
+ 501,"CuX",0,1.5,0,0,2,0,0,0,0,5
- 501,"CuX",0,1.5,0,0,2,0,0,0,0,105
- 1
- x,77
gone sorptemp.dat
