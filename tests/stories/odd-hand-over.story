# A hand-over that cannot be read.
put dabase.txt
| "open
> load
box [Kelmar error] critical OK [The editor cannot start in FOLDER: dabase.txt: a quoted text is not closed on its line. Start it from Kelmar, in Kelmar's folder.]
ended
