# A database that could not be copied to a place where there is nothing: the next copy fails in silence too.
> load
> choose counter.CDB
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> choose nowhere/x.cdb
> click cmdNewDb
dialog save [Counterion selectivity files (*.CDB)|*.CDB]
> choose new.cdb
> click cmdNewDb
dialog save [Counterion selectivity files (*.CDB)|*.CDB]
> state
cboIsoterm hidden [] 7
  [Linear Kd]
  [Freundlich]
  [Extended Freundlich]
  [Langmuir]
  [Temkin]
  [Langmuir-Freundlich]
  [NICA]
cdbfile true
compdb [comp.mdb]
dbname [new.cdb]
lblKsel shown [Selectivity coefficient (K-sel)]
lblNameDb shown [counter.CDB]
lbldhr shown [dHr (kJ/mol)]
lstReactions shown [] 17
  [NaX]
  [KX]
  [LiX]
  [NH4X]
  [CaX2]
  [MgX2]
  [SrX2]
  [BaX2]
  [MnX2]
  [FeX2]
  [CuX2]
  [ZnX2]
  [CdX2]
  [PbX2]
  [AlX3]
  [AlOHX2]
  [HX]
txtKsel shown []
gone sorptemp.dat
