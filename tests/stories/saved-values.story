# What the boxes become in the file: the toxicity flag, M.B. stoichiometries up to 99, and what is too large or too long. A
# component without a number counts as 0 in an ID number, and a suggestion shows the boxes of NICA.
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
put c.mdb
| ,"none",0,0,0,"x"
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
> type txtName  a,b? 
> type txtComp(1) =SOH
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
> select 0
> answer Yes
> click cmdDelete
box [Deletion of species - Kelmar] question YesNo [Are you really sure you would like to delete this species from the database? Once deleted it is gone!]
> state
cboIsoterm shown [Freundlich] 7
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
dbname [f.iso]
isomodel [Freundlich]
isoselect [Freundlich]
lblIsoterm shown [Isotherm model]
lblKsel hidden [Contributes to toxicity]
lblLogk shown [log KF]
lblMA shown [M.A.]
lblMB shown [M.B.*]
lblMBnote shown [* Leave M.B. field blank if the M.B. stoichiometry is equal to the M.A. stocihiometry]
lblNameDb shown [f.iso]
lbldhr hidden [dHr (kJ/mol)]
lstReactions shown [] 2
  [FeX]
  [a,b?]
mbfields true
txtNocomp shown [0]
txtdhr hidden []
txtf50 hidden [.375]
> choose c.mdb
> click cmdCompdb
dialog save [Kelmar database files (*.MDB)|*.MDB]
> click cmdAddnew
> type cboComp none
> type txtStoicn 1
> click cmdNextcomp
> type cboComp none
> type txtStoicn 1
> type txtSpname New
> click cmdSuggest
> state
cboComp shown [] 1
  [H2O]
cmdDelete hidden [Delete this species]
cmdNextcomp shown [Next component]
cmdSuggest shown [Suggest ID number]
compdb [c.mdb]
compslot 3
lblAddnew shown [Add new species:]
lblComp shown [Component no.  3]
lblMAnote shown [Here you supply the M.A. stoichiometry]
lblSpname shown [Species name]
lblStoich(1) shown [Stoichiometry of 1st component]
lblStoich(2) shown [Stoichiometry of 2nd component]
lstReactions shown [New] 3
  [FeX]
  [a,b?]
  [New]
txtComp(1) shown [none]
txtComp(2) shown [none]
txtID shown [ 13010000]
txtMBstoich(1) shown []
txtMBstoich(2) shown []
txtName shown [New]
txtNocomp shown [ 2]
txtSpname shown [New]
txtStoich(1) shown [1]
txtStoich(2) shown [1]
txtStoicn shown []
> pick cboIsoterm 6
> click cmdAddnew
> type cboComp NICAsite1
> type txtStoicn 1
> type txtSpname Other
> click cmdSuggest
> state
cboIsoterm shown [NICA] 7
  [Linear Kd]
  [Freundlich]
  [Extended Freundlich]
  [Langmuir]
  [Temkin]
  [Langmuir-Freundlich]
  [NICA]
compslot 2
isomodel [NICA]
isoselect [NICA]
lblComp shown [Component no.  2]
lblLk2 shown [Lk2]
lblMA hidden [M.A.]
lblMB hidden [M.B.*]
lblMBnote hidden [* Leave M.B. field blank if the M.B. stoichiometry is equal to the M.A. stocihiometry]
lblStoich(2) hidden [Stoichiometry of 2nd component]
lbldhr shown [p]
lstReactions shown [Other] 3
  [FeX]
  [a,b?]
  [Other]
mbfields false
txtComp(1) shown [NICAsite1]
txtComp(2) hidden []
txtID shown [ 13210000]
txtKsel shown [ 0]
txtLk2 shown [ 0]
txtMBstoich(1) hidden []
txtMBstoich(2) hidden []
txtName shown [Other]
txtNocomp shown [ 1]
txtSpname shown [Other]
txtStoich(2) hidden []
txtdhr shown [ 0]
file f.iso
+ 501.5,"a,b?",0,1.5,0,0,2,0,0,0,0,1
+ 1,812
- 501,"CuX",0,1.5,0,0,2,0,0,0,0,2
- 1,231,2,330
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
