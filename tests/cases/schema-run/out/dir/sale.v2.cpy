       01 sale identified by "sale" count in sale-count.
        02 line-no PIC S9(18) identified by "line_no" count in 
           line-no-count.
        02 part identified by "part" count in part-count.
         03 line-no PIC X(80) occurs 3 times identified by "line_no" 
            count in line-no-count.

