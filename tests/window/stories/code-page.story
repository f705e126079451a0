# Only characters of the code page are taken.
put sorptemp.dat
| nothing.MDB
> load
> focus txtName
focus txtName
> paste a‚Ç¨–ñb¬Å√©
tooltip [A character was left out: the files hold only those of the code page Windows-1252.]
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
dbname [nothing.MDB]
lblNameDb shown [nothing.MDB]
lbldhr shown [dHr (kJ/mol)]
txtName shown [aÄbÅÈ]
gone sorptemp.dat
