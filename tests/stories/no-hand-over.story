# Without the path of a database the window is empty; one is opened by the menu.
remove sorptemp.dat
> load
> state
cboIsoterm hidden [] 7
  [Linear Kd]
  [Freundlich]
  [Extended Freundlich]
  [Langmuir]
  [Temkin]
  [Langmuir-Freundlich]
  [NICA]
compdb [comp.mdb]
lblNameDb shown []
lbldhr shown [dHr (kJ/mol)]
> choose copper.BLI
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> state
blifile true
dbname [copper.BLI]
lblIsoterm shown [Critical f value]
lblKsel shown [Contributes to toxicity]
lblNameDb shown [copper.BLI]
lstReactions shown [] 7
  [BL-Cu]
  [BL-CuOH]
  [BL-H]
  [BL-Ca]
  [BL-Mg]
  [BL-Na]
  [BL-K]
txtKsel shown []
txtf50 shown [ .18]
> close
ended
