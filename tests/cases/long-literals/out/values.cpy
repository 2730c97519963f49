       01 r identified by "r".
        88 enumerator-0 value is 
           "two words and a few more that pass no line end".
        88 enumerator-1 value is 
           "He said ""yes"" and then ""no"", and after that he said noth
      -    "ing at all for the rest of the long day.".
        88 enumerator-2 value is 
           "this one is closed in column 72 and leaves a period behind."
           .
        88 enumerator-3 value is 
           "here a mark that is doubled straddles the end of this line:"
      -    "" as it may".
        88 enumerator-4 value is 
           "tab, line feed and blanks   count as blanks within any value
      -    " of a name".
        02 r-value PIC X(80).

