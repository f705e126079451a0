# The critical f value, which is taken without the comma rule; a value that is text stops every rewrite.
put x.bli
| "text"
| "label",.5
| 501,"CuX",0,1.5,0,0,2,0,0,0,0,0
| 502,"CuX",0,1.5,0,0,2,0,0,0,0,0
| 503,"b",0,1.5,0,1,2,0,0,0,0,0
| trailer
put y.bli
| "text"
| "label",abc
| 501,"CuX",0,1.5,0,0,2,0,0,0,0,0
| trailer
put sorptemp.dat
| x.bli
> load
> select 0
> type txtf50  0,5
> click cmdDelete
box [Deletion of species - Kelmar] question YesNo [Are you really sure you would like to delete this species from the database? Once deleted it is gone!]
> answer Yes
> click cmdDelete
box [Deletion of species - Kelmar] question YesNo [Are you really sure you would like to delete this species from the database? Once deleted it is gone!]
> state
blifile true
cboIsoterm hidden [] 7
  [Linear Kd]
  [Freundlich]
  [Extended Freundlich]
  [Langmuir]
  [Temkin]
  [Langmuir-Freundlich]
  [NICA]
cmdDelete shown [Delete this species]
compdb [comp.mdb]
dbname [x.bli]
lblIsoterm shown [Critical f value]
lblKsel shown [Contributes to toxicity]
lblNameDb shown [x.bli]
lbldhr shown [dHr (kJ/mol)]
lstReactions shown [] 2
  [CuX]
  [b]
txtKsel shown []
txtNocomp shown [0]
txtf50 shown [ 0,5]
> choose y.bli
> click mnuFileOpen
dialog open [Complexation database files (*.MDB)|*.MDB|Counterion selectivity files (*.CDB)|*.CDB|Isotherm database files (*.ISO)|*.ISO|NICA-Donnan database files (*.NIC)|*.NIC|BLM parameter files (*.BLI)|*.BLI]
> state
dbname [y.bli]
lblNameDb shown [y.bli]
lstReactions shown [] 0
> click cmdAddnew
> type txtSpname New
> click cmdSuggest
box [Kelmar error] critical OK [y.bli, before the first record: the critical f value is "abc", not a number. Mend the file with a text editor.]
> type txtID 7
> type txtlogk 1
> type txtCharge 0
> choose new.bli
> click cmdNewDb
dialog save [BLM parameter files (*.BLI)|*.BLI]
box [Kelmar error] critical OK [new.bli, before the first record: the critical f value is "abc", not a number. Mend the file with a text editor.]
> select 0
box [Kelmar error] critical OK [new.bli, before the first record: the critical f value is "abc", not a number. Mend the file with a text editor.]
file new.bli
+ "text"
+ "label",abc
+ 501,"CuX",0,1.5,0,0,2,0,0,0,0,0
+ 0,"",0,0,0,0,0,0,0,0
+ 0,0
+ 0,"For KELMAR",0,0,0,0,0,0,0,0
+ 0,0
+ 0,"",0,0,0,0,0,0,0,0
+ 0,0
file x.bli
+ "label",0
- "label",.5
- 501,"CuX",0,1.5,0,0,2,0,0,0,0,0
- 502,"CuX",0,1.5,0,0,2,0,0,0,0,0
gone sorptemp.dat
