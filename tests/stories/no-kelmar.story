# Without Kelmar's hand-over the editor does not start.
remove dabase.txt
> load
box [Kelmar error] critical OK [The editor cannot start in FOLDER: cannot open dabase.txt: No such file or directory. Start it from Kelmar, in Kelmar's folder.]
ended
