# Writes the files of one sample out of a page: each block that follows a comment "<!-- sample NAME/FILE -->", with
# nothing between, becomes FILE in a folder. To be called with -v sample=NAME -v folder=FOLDER.
inside && /^```$/ { inside = 0; close(file) }
inside { if (file) print > file; next }
/^```./ { inside = 1; if (file) printf "" > file; next }
{ file = "" }
/^<!-- sample .* -->$/ && index($3, sample "/") == 1 { file = folder "/" substr($3, length(sample) + 2) }
