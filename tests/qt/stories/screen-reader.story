# What a screen reader tells of the boxes, and what it and dictation change; long texts are whole in tooltips.
put x.iso
| "Freundlich"
| 501,"CuX",0,1.5,0,0,2,0,0,0,0,1
| 1,231
| 502,"FeX",0,2.5,0,0,2,0,0,0,0,0
| trailer
folder wwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwww
put wwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwww/xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx.mdb
| 501,"CuX",0,1.5,0,0,2,0,0,0,0,0
| trailer
put sorptemp.dat
| x.iso
> load
> select 0
> describe lstReactions
name [Present database species] description [] tooltip [none] lit
> key Left
> focus txtID
focus txtID
> describe lstReactions
name [Present database species] description [] tooltip [none]
> describe txtlogk
name [log KF] description [] tooltip [none] label [log KF]
> describe txtStoich(1)
name [Stoichiometry of 1st component] description [M.A. stoichiometry of the 1st component] tooltip [none]
> describe txtComp(1)
name [Stoichiometry of 1st component] description [Name of the 1st component] tooltip [none]
> describe txtName
name [Species name] description [] tooltip [none] label [Species name]
> describe cboIsoterm
name [Freundlich] description [] tooltip [none] label [Isotherm model]
> describe txtID
name [Species ID number] description [] tooltip [none] label [Species ID number]
> type txtName <b>wwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwww</b>
> describe txtName
name [Species name] description [] tooltip [<span>&lt;b&gt;wwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwww&lt;/b&gt;</span>] label [Species name]
> describe lblComp
name [Component no. 1] description [] tooltip [none]
> state
cboIsoterm shown [Freundlich] 7
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
isomodel [Freundlich]
isoselect [Freundlich]
lblIsoterm shown [Isotherm model]
lblLogk shown [log KF]
lblMA shown [M.A.]
lblMB shown [M.B.*]
lblMBnote shown [* Leave M.B. field blank if the M.B. stoichiometry is equal to the M.A. stocihiometry]
lblNameDb shown [x.iso]
lblStoich(1) shown [Stoichiometry of 1st component]
lbldhr hidden [dHr (kJ/mol)]
lstReactions shown [CuX] 2
  [CuX]
  [FeX]
mbfields true
txtCharge shown [ 2]
txtComp(1) shown [Cu+2]
txtID shown [ 501]
txtMBstoich(1) shown []
txtName shown [<b>wwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwww</b>]
txtNocomp shown [ 1]
txtStoich(1) shown [ 1]
txtdhr hidden [  0]
txtlogk shown [  1.5]
> dictate txtlogk 99
> current -1
> state
txtlogk shown [99]
> resize 1.6
> choose copper.BLI
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> describe txtf50
name [Critical f value] description [] tooltip [none] label [Critical f value]
> choose wwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwww/xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx.mdb
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> describe lblNameDb
name [wwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwww/xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx.mdb] description [] tooltip [<span>wwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwww/xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx.mdb</span>]
> describe txtID
name [Species ID number] description [] tooltip [none] label [Species ID number]
gone sorptemp.dat
