# The open list of a combo box: closed without a pick it leaves what was typed. Letters typed after a pause begin anew.
put x.iso
| "Freundlich"
| 501,"CuX",0,1.5,0,0,2,0,0,0,0,0
| 502,"FeX",0,2.5,0,0,2,0,0,0,0,0
| trailer
put sorptemp.dat
| x.iso
> load
> keys Fe
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
lbldhr hidden [dHr (kJ/mol)]
lstReactions shown [FeX] 2
  [CuX]
  [FeX]
mbfields true
txtCharge shown [ 2]
txtID shown [ 502]
txtName shown [FeX]
txtNocomp shown [ 0]
txtdhr hidden [  0]
txtlogk shown [  2.5]
> wait 1100
> keys c
> state
lstReactions shown [CuX] 2
  [CuX]
  [FeX]
txtID shown [ 501]
txtName shown [CuX]
txtlogk shown [  1.5]
> type cboIsoterm Lang
> key Alt+Down
> key Escape
> state
cboIsoterm shown [Lang] 7
  [Linear Kd]
  [Freundlich]
  [Extended Freundlich]
  [Langmuir]
  [Temkin]
  [Langmuir-Freundlich]
  [NICA]
> key Alt+Down
> key Down
> key Escape
> state
> key Alt+Down
> wheel cboIsoterm
> key Escape
> state
> key Alt+Down
> key Down
> key Return
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
lblMA hidden [M.A.]
lblMB hidden [M.B.*]
lblMBnote hidden [* Leave M.B. field blank if the M.B. stoichiometry is equal to the M.A. stocihiometry]
lstReactions shown [] 2
  [CuX]
  [FeX]
mbfields false
gone sorptemp.dat
