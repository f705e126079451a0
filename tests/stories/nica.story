# The model NICA: p, m-ref and the second constant, in the window and in a new species.
put x.iso
| "NICA"
| 13221500,"S1",1.5,2,.7,.66,0,0,0,0,0,2
| 1,1321,1,150
| 5,"other",0,2,.5,0,0,0,0,0,0,0
| trailer
put comp.mdb
| 1321,"NICAsite1",0,0,0,0
| 1322,"NICAsite2",0,0,0,0
| 150,"Ca+2",0,0,0,0
put sorptemp.dat
| x.iso
> load
> select 0
> state
cboIsoterm shown [NICA] 7
  [Linear Kd]
  [Freundlich]
  [Extended Freundlich]
  [Langmuir]
  [Temkin]
  [Langmuir-Freundlich]
  [NICA]
cmdDelete shown [Delete this species]
compdb [comp.mdb]
dbname [x.iso]
isomodel [NICA]
isoselect [NICA]
lblIsoterm shown [Isotherm model]
lblKsel shown [m-ref]
lblLk2 shown [m]
lblNameDb shown [x.iso]
lblStoich(1) shown [Stoichiometry of 1st component]
lblStoich(2) shown [Stoichiometry of 2nd component]
lbldhr shown [p]
lstReactions shown [S1] 2
  [S1]
  [other]
txtCharge shown [ 0]
txtComp(1) shown [NICAsite1]
txtComp(2) shown [Ca+2]
txtID shown [ 13221500]
txtKsel shown [  .7]
txtLk2 shown [  .66]
txtName shown [S1]
txtNocomp shown [ 2]
txtStoich(1) shown [ 1]
txtStoich(2) shown [ 1]
txtdhr shown [  1.5]
txtlogk shown [  2]
> type txtKsel 0,8
> type txtdhr 2
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
> click cmdAddnew
> pick cboComp 1
> type txtStoicn 1
> click cmdNextcomp
> pick cboComp 0
> type txtStoicn 2
> type txtSpname S2
> click cmdSuggest
> state
cboComp shown [] 4
  [NICAsite1]
  [NICAsite2]
  [Ca+2]
  [H2O]
changedone [N]
cmdDelete hidden [Delete this species]
cmdNextcomp shown [Next component]
cmdSuggest shown [Suggest ID number]
compslot 3
lblAddnew shown [Add new species:]
lblComp shown [Component no.  3]
lblSpname shown [Species name]
lstReactions shown [S2] 3
  [S1]
  [other]
  [S2]
txtCharge shown []
txtComp(1) shown [NICAsite2]
txtComp(2) shown [NICAsite1]
txtID shown [ 13233210]
txtKsel shown [ 0]
txtLk2 shown [ 0]
txtName shown [S2]
txtSpname shown [S2]
txtStoich(1) shown [1]
txtStoich(2) shown [2]
txtStoicn shown []
txtdhr shown [ 0]
txtlogk shown []
> type txtlogk 1
> type txtCharge 0
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
> select 2
> state
cboComp hidden [] 4
  [NICAsite1]
  [NICAsite2]
  [Ca+2]
  [H2O]
cmdDelete shown [Delete this species]
cmdNextcomp hidden [Next component]
cmdSuggest hidden [Suggest ID number]
lblAddnew hidden [Add new species:]
lblComp hidden [Component no.  3]
lblLk2 hidden [m]
lblSpname hidden [Species name]
lblStoich(1) hidden [Stoichiometry of 1st component]
lblStoich(2) hidden [Stoichiometry of 2nd component]
lstReactions shown [other] 3
  [S2]
  [S1]
  [other]
txtCharge shown [ 0]
txtComp(1) hidden [NICAsite2]
txtComp(2) hidden [NICAsite1]
txtID shown [ 5]
txtKsel shown [  .5]
txtLk2 hidden [ 0]
txtName shown [other]
txtNocomp shown [ 0]
txtSpname hidden []
txtStoich(1) hidden [1]
txtStoich(2) hidden [2]
txtStoicn hidden []
txtdhr shown [  0]
txtlogk shown [  2]
file x.iso
+ 13233210,"S2",0,1,0,0,0,0,0,0,0,2
+ 1,1322,2,1321
+ 13221500,"S1",2,2,.8,.66,0,0,0,0,0,2
- 13221500,"S1",1.5,2,.7,.66,0,0,0,0,0,2
gone sorptemp.dat
