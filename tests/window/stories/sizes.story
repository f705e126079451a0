# In a window of any size, with a species of each kind of database or a new one, no caption is cut (and where that can be,
# no control lies over another), and the text of a combo box stays what was typed.
> load
> resize .6
> choose complex.MDB
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 1
> choose counter.CDB
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 0
> choose goethite.MDB
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 1
> choose organic.MDB
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 2
> choose sorption.MDB
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 1
> choose freundl.ISO
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 0
> choose copper.BLI
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 0
> choose nicadon.NIC
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 0
> choose langmuir.ISO
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 0
> resize 1.383
> choose complex.MDB
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 1
> choose counter.CDB
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 0
> choose goethite.MDB
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 1
> choose organic.MDB
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 2
> choose sorption.MDB
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 1
> choose freundl.ISO
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 0
> choose copper.BLI
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 0
> choose nicadon.NIC
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 0
> choose langmuir.ISO
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 0
> resize 1.458
> choose complex.MDB
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 1
> choose counter.CDB
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 0
> choose goethite.MDB
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 1
> choose organic.MDB
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 2
> choose sorption.MDB
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 1
> choose freundl.ISO
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 0
> choose copper.BLI
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 0
> choose nicadon.NIC
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 0
> choose langmuir.ISO
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> select 0
> click cmdAddnew
> type txtSpname New
> type txtStoicn 1
> type cboComp H
> resize .496
> state
cboComp shown [H] 54
  [Ag+]
  [Al+3]
  [Ba+2]
  [Br-]
  [Ca+2]
  [Cd+2]
  [Cl-]
  [CO3-2]
  [Cs+]
  [Cu+]
  [Cu+2]
  [e-]
  [F-]
  [Fe+2]
  [Fe+3]
  [H+]
  [H3AsO3]
  [H3AsO4]
  [H3BO3]
  [H4SiO4]
  [HS-]
  [HSe-]
  [I-]
  [K+]
  [Li+]
  [Mg+2]
  [Mn+2]
  [Mn+3]
  [MnO4-]
  [MnO4-2]
  [Na+]
  [NH4+]
  [Ni+2]
  [NO2-]
  [NO3-]
  [Pb+2]
  [PO4-3]
  [Rb+]
  [SeO3-2]
  [SeO4-2]
  [SO4-2]
  [Sr+2]
  [U+3]
  [U+4]
  [UO2+]
  [UO2+2]
  [Zn+2]
  [psi0]
  [psib]
  [psid]
  [BL-]
  [Lsite1]
  [Lsite2]
  [H2O]
cboIsoterm shown [Langmuir] 7
  [Linear Kd]
  [Freundlich]
  [Extended Freundlich]
  [Langmuir]
  [Temkin]
  [Langmuir-Freundlich]
  [NICA]
cmdNextcomp shown [Next component]
cmdSuggest shown [Suggest ID number]
compdb [comp.mdb]
compslot 1
dbname [langmuir.ISO]
isomodel [Langmuir]
isoselect [Langmuir]
lblAddnew shown [Add new species:]
lblComp shown [Component no. 1]
lblIsoterm shown [Isotherm model]
lblKsel hidden [Contributes to toxicity]
lblLk2 hidden [n]
lblLogk shown [log KL]
lblNameDb shown [langmuir.ISO]
lblSpname shown [Species name]
lbldhr hidden [dHr (kJ/mol)]
lstReactions shown [] 10
  [L1Cu]
  [L1Cd]
  [L1Zn]
  [L1Pb]
  [L1Ca]
  [L1H]
  [L2PO4]
  [L2As]
  [L2Si]
  [L2CO3]
txtLk2 hidden [  .66]
txtNocomp shown [0]
txtSpname shown [New]
txtStoicn shown [1]
txtdhr hidden []
txtf50 hidden [ .18]
> pick cboComp 15
> click cmdNextcomp
> type txtStoicn 2
> pick cboComp 4
> click cmdNextcomp
> type txtStoicn 1
> pick cboComp 9
> resize 1.383
> click cmdNextcomp
> resize 1.458
> click cmdSuggest
> state
cboComp shown [] 54
  [Ag+]
  [Al+3]
  [Ba+2]
  [Br-]
  [Ca+2]
  [Cd+2]
  [Cl-]
  [CO3-2]
  [Cs+]
  [Cu+]
  [Cu+2]
  [e-]
  [F-]
  [Fe+2]
  [Fe+3]
  [H+]
  [H3AsO3]
  [H3AsO4]
  [H3BO3]
  [H4SiO4]
  [HS-]
  [HSe-]
  [I-]
  [K+]
  [Li+]
  [Mg+2]
  [Mn+2]
  [Mn+3]
  [MnO4-]
  [MnO4-2]
  [Na+]
  [NH4+]
  [Ni+2]
  [NO2-]
  [NO3-]
  [Pb+2]
  [PO4-3]
  [Rb+]
  [SeO3-2]
  [SeO4-2]
  [SO4-2]
  [Sr+2]
  [U+3]
  [U+4]
  [UO2+]
  [UO2+2]
  [Zn+2]
  [psi0]
  [psib]
  [psid]
  [BL-]
  [Lsite1]
  [Lsite2]
  [H2O]
compslot 4
lblComp shown [Component no.  4]
lblStoich(1) shown [Stoichiometry of 1st component]
lblStoich(2) shown [Stoichiometry of 2nd component]
lblStoich(3) shown [Stoichiometry of 3rd component]
lstReactions shown [New] 11
  [L1Cu]
  [L1Cd]
  [L1Zn]
  [L1Pb]
  [L1Ca]
  [L1H]
  [L2PO4]
  [L2As]
  [L2Si]
  [L2CO3]
  [New]
txtComp(1) shown [H+]
txtComp(2) shown [Ca+2]
txtComp(3) shown [Cu+]
txtID shown [ 13011501]
txtName shown [New]
txtNocomp shown [ 3]
txtStoich(1) shown [1]
txtStoich(2) shown [2]
txtStoich(3) shown [1]
txtStoicn shown []
> close
ended
gone sorptemp.dat
