# A number shows from its first digit, also when it was only looked at.
put x.mdb
| 501,"FeOH+2",0,1.5,0,0,1.333333333333333,0,0,0,0,2
| 1,150,-1,330
| 502,"Fe(OH)3-",0,2.5,0,0,-1,0,0,0,0,2
| 1,150,-3,330
| 503,"FeSO4+",0,3.5,0,0,1,0,0,0,0,2
| 1,150,1,231
| 504,"HPO4-2",0,4.5,0,0,-2,0,0,0,0,2
| 1,150,1,330
| 505,"CaSO4",0,5.5,0,0,0,0,0,0,0,2
| 1,150,1,231
| trailer
put sorptemp.dat
| x.mdb
> load
> select 0
> cursor txtCharge
cursor 0
> type txtCharge 1.333333333333333333333333333
> cursor txtCharge
cursor 29
> focus txtID
focus txtID
> cursor txtCharge
cursor 0
> focus txtCharge
focus txtCharge
> key End
> cursor txtCharge
cursor 29
> key Tab
focus txtNocomp
> cursor txtCharge
cursor 0
> close
ended
gone sorptemp.dat
