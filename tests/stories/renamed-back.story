# A BLM database saved under another kind's name, and back under its own by a save that stops at a message.
put t.bli
| "text"
| "label",.5
| 501,"CuX",0,1.5,0,0,2,0,0,0,0,0
| trailer
put sorptemp.dat
| t.bli
> load
> select 0
> choose y.mdb
> click cmdNewDb
dialog save [BLM parameter files (*.BLI)|*.BLI]
box [Kelmar error] critical OK [y.mdb holds a BLM parameter database, but its name is that of a complexation / sorption database. The list and the boxes may therefore be wrong: give it a name that ends in .BLI and open it again.]
> choose z.bli
> click cmdNewDb
dialog save [BLM parameter files (*.BLI)|*.BLI]
box [Kelmar error] critical OK [Please use the mouse to select the database species to be changed before saving]
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
changedone [N]
cmdDelete shown [Delete this species]
compdb [comp.mdb]
dbname [z.bli]
lblIsoterm shown [Critical f value]
lblKsel shown [Contributes to toxicity]
lblNameDb shown [z.bli]
lbldhr shown [dHr (kJ/mol)]
lstReactions shown [] 1
  [CuX]
txtCharge shown [ 2]
txtID shown [ 501]
txtKsel shown [ No]
txtName shown [CuX]
txtNocomp shown [ 0]
txtdhr shown [  0]
txtf50 shown [ .5]
txtlogk shown [  1.5]
file y.mdb
+ "text"
+ "label",.5
+ 501,"CuX",0,1.5,0,0,2,0,0,0,0,0
+ 0,"",0,0,0,0,0,0,0,0
+ 0,0
+ 0,"For KELMAR",0,0,0,0,0,0,0,0
+ 0,0
+ 0,"",0,0,0,0,0,0,0,0
+ 0,0
file z.bli
+ "text"
+ "label",.5
+ 501,"CuX",0,1.5,0,0,2,0,0,0,0,0
+ 0,"",0,0,0,0,0,0,0,0
+ 0,0
+ 0,"For KELMAR",0,0,0,0,0,0,0,0
+ 0,0
+ 0,"",0,0,0,0,0,0,0,0
+ 0,0
gone sorptemp.dat
