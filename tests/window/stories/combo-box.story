# Typing an entry of a combo box picks nothing, nor does the wheel; an arrow key does.
put x.iso
| "Freundlich"
| 501,"CuX",0,1.5,0,0,2,0,0,0,0,0
| 502,"FeX",0,2.5,0,0,2,0,0,0,0,0
| trailer
put sorptemp.dat
| x.iso
> load
> select 1
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
> focus cboIsoterm
focus cboIsoterm
> key Down
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
lstReactions shown [] 2
  [CuX]
  [FeX]
> type txtlogk 7
> type cboIsoterm Temkin
> key Return
> focus txtID
focus txtID
> state
cboIsoterm shown [Temkin] 7
  [Linear Kd]
  [Freundlich]
  [Extended Freundlich]
  [Langmuir]
  [Temkin]
  [Langmuir-Freundlich]
  [NICA]
txtlogk shown [7]
> focus cboIsoterm
focus cboIsoterm
> wheel cboIsoterm
> resize 1.1
> state
> click mnuFileExit
ended
gone sorptemp.dat
