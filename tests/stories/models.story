# Each isotherm model of the selector, the species that it shows, and a pick that is saved without a species.
> load
> choose freundl.ISO
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> state
cboIsoterm shown [Freundlich] 7
  [Linear Kd]
  [Freundlich]
  [Extended Freundlich]
  [Langmuir]
  [Temkin]
  [Langmuir-Freundlich]
  [NICA]
compdb [comp.mdb]
dbname [freundl.ISO]
isomodel [Freundlich]
isoselect [Freundlich]
lblIsoterm shown [Isotherm model]
lblLogk shown [log KF]
lblMA shown [M.A.]
lblMB shown [M.B.*]
lblMBnote shown [* Leave M.B. field blank if the M.B. stoichiometry is equal to the M.A. stocihiometry]
lblNameDb shown [freundl.ISO]
lbldhr hidden [dHr (kJ/mol)]
lstReactions shown [] 10
  [CuX]
  [CdX]
  [ZnX]
  [PbX]
  [NiX]
  [PO4X]
  [AsX]
  [SeX]
  [CsX]
  [SrX]
mbfields true
txtdhr hidden []
> pick cboIsoterm 0
> select 4
> state
cboIsoterm shown [Linear Kd] 7
  [Linear Kd]
  [Freundlich]
  [Extended Freundlich]
  [Langmuir]
  [Temkin]
  [Langmuir-Freundlich]
  [NICA]
cmdDelete shown [Delete this species]
isoselect [Linear Kd]
lblLogk shown [log Kd]
lblMA hidden [M.A.]
lblMB hidden [M.B.*]
lblMBnote hidden [* Leave M.B. field blank if the M.B. stoichiometry is equal to the M.A. stocihiometry]
lblStoich(1) shown [Stoichiometry of 1st component]
lstReactions shown [NiX] 10
  [CuX]
  [CdX]
  [ZnX]
  [PbX]
  [NiX]
  [PO4X]
  [AsX]
  [SeX]
  [CsX]
  [SrX]
mbfields false
txtCharge shown [ 0]
txtComp(1) shown [Ni+2]
txtID shown [ 13015080]
txtName shown [NiX]
txtNocomp shown [ 1]
txtStoich(1) shown [ .74]
txtdhr hidden [  0]
txtlogk shown [  1.4]
> pick cboIsoterm 1
> state
cboIsoterm shown [Freundlich] 7
  [Linear Kd]
  [Freundlich]
  [Extended Freundlich]
  [Langmuir]
  [Temkin]
  [Langmuir-Freundlich]
  [NICA]
isoselect [Freundlich]
lblLogk shown [log KF]
lblMA shown [M.A.]
lblMB shown [M.B.*]
lblMBnote shown [* Leave M.B. field blank if the M.B. stoichiometry is equal to the M.A. stocihiometry]
lstReactions shown [] 10
  [CuX]
  [CdX]
  [ZnX]
  [PbX]
  [NiX]
  [PO4X]
  [AsX]
  [SeX]
  [CsX]
  [SrX]
mbfields true
> pick cboIsoterm 2
> state
cboIsoterm shown [Extended Freundlich] 7
  [Linear Kd]
  [Freundlich]
  [Extended Freundlich]
  [Langmuir]
  [Temkin]
  [Langmuir-Freundlich]
  [NICA]
isomodel [Extended Freundlich]
isoselect [Extended Freundlich]
> pick cboIsoterm 3
> state
cboIsoterm shown [Langmuir] 7
  [Linear Kd]
  [Freundlich]
  [Extended Freundlich]
  [Langmuir]
  [Temkin]
  [Langmuir-Freundlich]
  [NICA]
isomodel [Langmuir]
isoselect [Langmuir]
lblLogk shown [log KL]
lblMA hidden [M.A.]
lblMB hidden [M.B.*]
lblMBnote hidden [* Leave M.B. field blank if the M.B. stoichiometry is equal to the M.A. stocihiometry]
mbfields false
> pick cboIsoterm 4
> state
cboIsoterm shown [Temkin] 7
  [Linear Kd]
  [Freundlich]
  [Extended Freundlich]
  [Langmuir]
  [Temkin]
  [Langmuir-Freundlich]
  [NICA]
isomodel [Temkin]
isoselect [Temkin]
lblLogk shown [log KT]
> pick cboIsoterm 5
> state
cboIsoterm shown [Langmuir-Freundlich] 7
  [Linear Kd]
  [Freundlich]
  [Extended Freundlich]
  [Langmuir]
  [Temkin]
  [Langmuir-Freundlich]
  [NICA]
isomodel [Langmuir-Freundlich]
isoselect [Langmuir-Freundlich]
lblLogk shown [log KLF]
> pick cboIsoterm 6
> select 4
> state
cboIsoterm shown [NICA] 7
  [Linear Kd]
  [Freundlich]
  [Extended Freundlich]
  [Langmuir]
  [Temkin]
  [Langmuir-Freundlich]
  [NICA]
isomodel [Freundlich]
isoselect [NICA]
lbldhr shown [p]
lstReactions shown [NiX] 10
  [CuX]
  [CdX]
  [ZnX]
  [PbX]
  [NiX]
  [PO4X]
  [AsX]
  [SeX]
  [CsX]
  [SrX]
txtdhr shown [  0]
> type cboIsoterm My own
> pick cboIsoterm 4
> answer Yes
> click cmdSavedb
box [Species change - Kelmar] question YesNo [Are you really sure you would like to save changes to the database? - The old settings will disappear forever]
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
isomodel [Temkin]
isoselect [Temkin]
lblLogk shown [log KT]
lbldhr hidden [dHr (kJ/mol)]
lstReactions shown [] 10
  [CuX]
  [CdX]
  [ZnX]
  [PbX]
  [NiX]
  [PO4X]
  [AsX]
  [SeX]
  [CsX]
  [SrX]
txtdhr hidden [  0]
file freundl.ISO
+ "Temkin"
- "Freundlich"
gone sorptemp.dat
