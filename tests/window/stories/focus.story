# The focus goes back by Shift, and on from a control that is hidden. A screen reader
# takes back no choice, and what it dictates is typed.
put x.mdb
| 501,"FeOH+2",0,1.5,0,0,2,0,0,0,0,2
| 1,150,-1,330
| 502,"Fe(OH)3-",0,2.5,0,0,-1,0,0,0,0,2
| 1,150,-3,330
| 503,"FeSO4+",0,3.5,0,0,1,0,0,0,0,2
| 1,150,1,231
| 504,"CaOH+",0,4.5,0,0,1,0,0,0,0,1
| 1,150
| trailer
put sorptemp.dat
| x.mdb
> load
> key Shift+Tab
focus cmdQuit
> key Shift+Tab
focus cmdNewDb
> focus lstReactions
focus lstReactions
> key Down
> focus txtStoich(2)
focus txtStoich(2)
> current 3
focus txtName
> key Shift+Tab
focus txtComp(1)
> click cmdAddnew
> focus cboComp
focus cboComp
> current 0
> key Tab
focus cmdNextcomp
> current -1
> dictate txtName CaX
> current 2
> dictate txtlogk 99
gone sorptemp.dat
