      * One of the people of a claim; the program gives the prefix.
           10  :PARTY:-NAME        PIC X(40).
           10  :PARTY:-BIRTH-DATE  PIC 9(8).
           10  :PARTY:-PHONE       PIC X(15).
