# The real message boxes. A question is answered Yes by Yes alone; a text is shown as it stands; the focus stays where it was.
> load
> focus txtID
focus txtID
> dialog tell Return <b>x</b> Ã¤
the window shows what stands
[Kelmar] [<b>x</b> ä] critical OK
answer OK
> dialog ask Yes Really?
the window shows what stands
[Kelmar] [Really?] question YesNo
answer Yes
> dialog ask No Really?
the window shows what stands
[Kelmar] [Really?] question YesNo
answer No
> dialog ask Escape Really?
the window shows what stands
[Kelmar] [Really?] question YesNo
answer No
> dialog ask Return Really?
the window shows what stands
[Kelmar] [Really?] question YesNo
answer No
> dialog tell close WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW, record 4000 (WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW): the number of components is "WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW", not a number.
the window shows what stands
[Kelmar] [WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW, record 4000 (WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW): the number of components is "WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW", not a number.] critical OK
answer OK
gone sorptemp.dat
